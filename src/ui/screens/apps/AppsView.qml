// SPDX-License-Identifier: MIT
// The Apps screen. Its results are an empty state, or the list of applications, created when there are any and then
// kept.
// (Not `ComponentBehavior: Bound`: ModuleScaffold could not instantiate the component then.)
import QtQuick
import Zelk.App
import Zelk.Controls

ModuleScaffold {
    id: view

    required property AppsScreenModel apps

    module: view.apps
    content: Component {
        FocusScope {
            id: results

            // Set by ModuleScaffold.
            property AppsScreenModel module: null

            readonly property bool nothing: results.module?.nothing ?? true

            function build() {
                if (!results.nothing && pane.status === Loader.Null)
                    pane.setSource("AppsPane.qml", {
                        apps: results.module
                    });
            }

            onNothingChanged: results.build()

            EmptyState {
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.top: parent.top
                anchors.bottom: endingBar.top
                visible: results.nothing
                symbol: "square.grid.2x2"
                title: qsTr("No apps found")
                note: SystemTexts.of(SystemTexts.WhereAppsAre)
            }

            Loader {
                id: pane

                anchors.left: parent.left
                anchors.right: parent.right
                anchors.top: parent.top
                anchors.bottom: endingBar.top
                visible: !results.nothing
                enabled: visible
                focus: true
                onLoaded: pane.item.focus = true
            }

            // How a removal ended that did not go to the Trash, or not at all.
            UndoBar {
                id: endingBar

                objectName: "endingBar"
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.bottom: undoBar.top
                shown: results.module?.told ?? false
                text: results.module?.ending ?? ""
                details: results.module?.reason ?? ""
                spoken: AccessibleText.joined([endingBar.text, endingBar.details])
                onDismissed: results.module?.forgetEnding()
                onGone: pane.focus = true
            }

            UndoBar {
                id: undoBar

                anchors.left: parent.left
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                removal: results.module?.undoBar ?? null
                onGone: pane.focus = true
            }
        }
    }
}
