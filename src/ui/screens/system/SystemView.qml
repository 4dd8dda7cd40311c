// SPDX-License-Identifier: MIT
// The System screen. Its results are created when there are any, and then kept.
// (Not `ComponentBehavior: Bound`: ModuleScaffold could not instantiate the component then.)
import QtQuick
import Zelk.App

ModuleScaffold {
    id: view

    required property SystemScreenModel system

    module: view.system
    resultsTitle: qsTr("System & snapshots")
    resultsSubtitle: qsTr("what the treemap can't show")
    content: Component {
        Loader {
            id: results

            // Set by ModuleScaffold.
            property SystemScreenModel module: null

            function build() {
                if (results.module && results.status === Loader.Null)
                    results.setSource("SystemPage.qml", {
                        system: results.module
                    });
            }

            onModuleChanged: results.build()
            onLoaded: results.item.focus = true
        }
    }

    Binding {
        target: view.system
        property: "onScreen"
        value: view.visible
    }
}
