// SPDX-License-Identifier: MIT
// The Privacy screen. Its results are created after the first scan and then kept.
// (Not `ComponentBehavior: Bound`: ModuleScaffold could not instantiate the component then.)
import QtQuick
import Zelk.App
import Zelk.Controls

ModuleScaffold {
    id: view

    required property PrivacyScreenModel privacy

    readonly property bool windowActive: Window.active

    // There is no model yet when the view is put into its window, and none left when that window goes.
    function tellModel() {
        if (view.privacy)
            view.privacy.watch(watcher.seen, view.windowActive);
    }

    module: view.privacy
    resultsSubtitle: qsTr("browsing traces")
    onWindowActiveChanged: view.tellModel()

    content: Component {
        FocusScope {
            id: results

            // Set by ModuleScaffold.
            property PrivacyScreenModel module: null

            onModuleChanged: {
                if (results.module && pane.status === Loader.Null)
                    pane.setSource("TracePane.qml", {
                        privacy: results.module
                    });
            }

            Loader {
                id: pane

                anchors.fill: parent
                focus: true
                onLoaded: pane.item.focus = true
            }
        }
    }

    VisibleWatch {
        id: watcher

        onSeenChanged: view.tellModel()
        Component.onCompleted: view.tellModel()
    }
}
