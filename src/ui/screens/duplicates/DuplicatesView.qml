// SPDX-License-Identifier: MIT
// The Duplicates screen. Its results are an empty state, or the list of sets, created when there are some and then kept.
// (Not `ComponentBehavior: Bound`: ModuleScaffold could not instantiate the components then.)
import QtQuick
import Zelk.App
import Zelk.Controls

ModuleScaffold {
    id: view

    required property DuplicatesScreenModel duplicates

    // The list had the keyboard and is about to disappear.
    signal listEmptied(bool byKey)

    module: view.duplicates
    resultsSubtitle: view.duplicates.summary
    trailing: Component {
        Button {
            id: again

            objectName: "findAgain"
            text: view.duplicates.scanLabel // qmllint disable unqualified
            onClicked: view.duplicates.scan() // qmllint disable unqualified

            Connections {
                target: view // qmllint disable unqualified

                function onListEmptied(byKey: bool) {
                    again.forceActiveFocus(byKey ? Qt.TabFocusReason : Qt.MouseFocusReason);
                }
            }
        }
    }
    content: Component {
        FocusScope {
            id: results

            // Set by ModuleScaffold.
            property DuplicatesScreenModel module: null

            readonly property bool nothing: results.module?.nothing ?? true

            function build() {
                if (!results.nothing && sets.status === Loader.Null)
                    sets.setSource("DuplicateSets.qml", {
                        duplicates: results.module
                    });
            }

            onNothingChanged: results.build()

            EmptyState {
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.top: parent.top
                anchors.bottom: undoBar.top
                visible: results.nothing
                symbol: "checkmark.seal"
                title: qsTr("No duplicates")
                note: qsTr("No byte-identical files over 2 MB turned up.")
            }

            Loader {
                id: sets

                anchors.left: parent.left
                anchors.right: parent.right
                anchors.top: parent.top
                anchors.bottom: undoBar.top
                visible: !results.nothing
                enabled: visible
                focus: true
                onLoaded: sets.item.focus = true
            }

            Connections {
                target: sets.item
                ignoreUnknownSignals: true

                function onEmptied(byKey: bool) {
                    view.listEmptied(byKey); // qmllint disable unqualified
                }
            }

            UndoBar {
                id: undoBar

                anchors.left: parent.left
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                removal: results.module?.undoBar ?? null
                onGone: sets.focus = true
            }
        }
    }
}
