// SPDX-License-Identifier: MIT
// The current folder as a list at the left and a bubble map at the right, with the navigation bar above and the remove
// button below.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Charts
import Zelk.Controls

FocusScope {
    id: panes

    required property LensScreenModel lens

    readonly property real listWidth: Math.max(340, Math.min(Math.round(340 * TextScale.factor), Math.round(0.56 * width)))

    // Moves the focus off a button that is about to be disabled.
    function keepKeyboard(byKey: bool) {
        list.receive(byKey);
    }

    Binding {
        target: panes.lens
        property: "dark"
        value: Theme.isDark
    }

    EmptyState {
        anchors.fill: parent
        visible: !panes.lens.mapped
        symbol: "circle.hexagongrid"
        title: qsTr("Nothing to map")
    }

    FocusScope {
        anchors.fill: parent
        focus: true
        visible: panes.lens.mapped

        LensBar {
            id: bar

            anchors.left: parent.left
            anchors.right: parent.right
            lens: panes.lens
            onStepped: byKey => panes.keepKeyboard(byKey)
        }

        Item {
            id: stage

            anchors.top: bar.bottom
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: undoBar.top

            NumberAnimation {
                id: coming

                target: stage
                property: "opacity"
                from: 0
                to: 1
                easing.type: Easing.OutQuad
            }

            Connections {
                target: panes.lens

                function onDrilled(duration: int) {
                    coming.duration = Math.min(Motion.gentle, duration);
                    coming.restart();
                }
            }

            LensHead {
                id: head

                width: panes.listWidth
                lens: panes.lens
            }

            LensList {
                id: list

                anchors.top: head.bottom
                anchors.bottom: parent.bottom
                width: panes.listWidth
                lens: panes.lens
                focus: true
            }

            Divider {
                id: divider

                anchors.left: head.right
                anchors.top: parent.top
                anchors.bottom: parent.bottom
                vertical: true
            }

            BubbleChart {
                objectName: "lensMap"
                anchors.left: divider.right
                anchors.right: parent.right
                anchors.top: parent.top
                anchors.bottom: parent.bottom
                anchors.margins: 8
                model: panes.lens.bubbles
                name: panes.lens.mapName
            }

            EmptyState {
                anchors.left: divider.right
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                visible: panes.lens.bare
                symbol: "circle.hexagongrid"
                title: qsTr("No folders that take up space")
                note: qsTr("Files that lie directly in this folder are counted with it and not listed one by one.")
            }
        }

        UndoBar {
            id: undoBar

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: foot.top
            removal: panes.lens.undoBar
            onGone: byKey => {
                list.byKey = byKey;
                list.focus = true;
            }
        }

        LensFoot {
            id: foot

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            lens: panes.lens
            onRemoving: byKey => panes.keepKeyboard(byKey)
        }
    }

    ExplanationSheet {
        explanation: panes.lens.explanation
    }
}
