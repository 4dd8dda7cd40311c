// SPDX-License-Identifier: MIT
// The Tune screen. Its levers are created after the first scan and then kept.
// (Not `ComponentBehavior: Bound`: ModuleScaffold could not instantiate the component then.)
import QtQuick
import Zelk.App

ModuleScaffold {
    id: view

    required property TuneScreenModel tune

    module: view.tune
    resultsSubtitle: qsTr("startup & memory")
    content: Component {
        FocusScope {
            id: results

            // Set by ModuleScaffold.
            property TuneScreenModel module: null

            onModuleChanged: {
                if (results.module && levers.status === Loader.Null)
                    levers.setSource("TuneLevers.qml", {
                        tune: results.module
                    });
            }

            Loader {
                id: levers

                anchors.fill: parent
                focus: true
                onLoaded: levers.item.focus = true
            }
        }
    }
}
