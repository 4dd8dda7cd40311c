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

        // The current folder's name, and the buttons Start Over and Back.
        Item {
            id: bar

            width: parent.width
            implicitHeight: Math.max(52, startOver.implicitHeight + 16, nameText.implicitHeight + 16)

            Button {
                id: startOver

                kind: Button.Link
                objectName: "lensStartOver"
                anchors.left: parent.left
                anchors.leftMargin: 24
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Start Over")
                size: 13
                symbol: "arrow.counterclockwise"
                textColor: hovered ? Theme.ink : Theme.inkSoft
                onClicked: panes.lens.startOver()
            }

            Divider {
                id: barDivider

                anchors.left: startOver.right
                anchors.leftMargin: 12
                anchors.verticalCenter: parent.verticalCenter
                height: 20
            }

            IconButton {
                id: back

                objectName: "lensBack"
                anchors.left: barDivider.right
                anchors.leftMargin: 8
                anchors.verticalCenter: parent.verticalCenter
                symbol: "chevron.left"
                tint: Theme.ink
                text: qsTr("Back")
                help: qsTr("Back")
                enabled: panes.lens.canGoBack
                onClicked: {
                    const byKey = back.visualFocus;
                    panes.lens.back();
                    // At the top the button is disabled.
                    if (!panes.lens.canGoBack)
                        list.receive(byKey);
                }
            }

            SymbolItem {
                id: drive

                anchors.left: back.right
                anchors.leftMargin: 8
                anchors.verticalCenter: parent.verticalCenter
                name: "internaldrive.fill"
                color: Theme.inkSoft
                size: Math.round(12 * TextScale.factor)
            }

            Label {
                id: nameText

                objectName: "lensPlace"
                anchors.left: drive.right
                anchors.leftMargin: 8
                anchors.right: parent.right
                anchors.rightMargin: 26
                anchors.verticalCenter: parent.verticalCenter
                text: panes.lens.place
                size: 13
                font.weight: Font.Medium
                elide: Text.ElideMiddle
            }

            Divider {
                width: parent.width
                anchors.bottom: parent.bottom
            }
        }

        Item {
            id: stage

            anchors.top: bar.bottom
            width: parent.width
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

                function onDrilled(duration: int, bubble: int) {
                    coming.duration = Math.min(Motion.gentle, duration);
                    coming.restart();
                    map.growOutOf(bubble, coming.duration);
                }
                function onReturned(bubble: int) {
                    map.shrinkInto(bubble, Motion.gentle);
                }
            }

            LensHead {
                id: head

                anchors.left: parent.left
                width: panes.listWidth
                lens: panes.lens
            }

            LensList {
                id: list

                anchors.left: parent.left
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
            }

            Item {
                anchors.left: divider.right
                anchors.right: parent.right
                height: parent.height
                clip: true

                BubbleChart {
                    id: map

                    objectName: "lensMap"
                    anchors.fill: parent
                    anchors.margins: 8
                    model: panes.lens.bubbles
                    name: panes.lens.mapName
                }
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

            width: parent.width
            anchors.bottom: foot.top
            removal: panes.lens.undoBar
            onGone: byKey => {
                list.byKey = byKey;
                list.focus = true;
            }
        }

        // The drive's usage, the selected size, and the remove button.
        Rectangle {
            id: foot

            // The room between volume and button. Without enough for a line the caption stands below the volume.
            readonly property real between: foot.width - 2 * Theme.pageMargin - volume.width - removeButton.width - 2 * 16
            readonly property bool stacked: volume.visible && foot.between < 90 * TextScale.factor
            readonly property real texts: foot.stacked ? volume.height + 6 + caption.height : Math.max(volume.height, caption.height)

            width: parent.width
            anchors.bottom: parent.bottom
            implicitHeight: Math.max(foot.texts, removeButton.implicitHeight) + 2 * 16
            color: Theme.groundHi

            Divider {
                width: parent.width
            }

            LensVolume {
                id: volume

                anchors.left: parent.left
                anchors.leftMargin: Theme.pageMargin
                y: (parent.height - (foot.stacked ? foot.texts : height)) / 2
                visible: panes.lens.volumed
                lens: panes.lens
            }

            Label {
                id: caption

                objectName: "lensCaption"
                anchors.left: volume.visible && !foot.stacked ? volume.right : parent.left
                anchors.leftMargin: volume.visible && !foot.stacked ? 16 : Theme.pageMargin
                anchors.right: removeButton.left
                anchors.rightMargin: 16
                y: foot.stacked ? volume.y + volume.height + 6 : (parent.height - height) / 2
                text: panes.lens.caption
                size: 12
                soft: true
                horizontalAlignment: foot.stacked ? Text.AlignLeft : Text.AlignRight
                wrapMode: Text.Wrap
            }

            Button {
                id: removeButton

                kind: Button.Removal
                objectName: "lensRemove"
                anchors.right: parent.right
                anchors.rightMargin: Theme.pageMargin
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Review and Remove")
                enabled: panes.lens.removable
                onClicked: {
                    list.receive(removeButton.visualFocus);
                    panes.lens.removeSelected();
                }
            }
        }
    }

    ExplanationSheet {
        explanation: panes.lens.explanation
    }
}
