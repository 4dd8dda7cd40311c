// SPDX-License-Identifier: MIT
// The head of the list: the current folder, and the menu to select all or none.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Item {
    id: head

    required property LensScreenModel lens

    implicitHeight: column.implicitHeight + 16 + 8

    Column {
        id: column

        anchors.left: parent.left
        anchors.leftMargin: 26
        anchors.right: parent.right
        anchors.rightMargin: 16
        y: 16
        spacing: 8

        Item {
            width: parent.width
            implicitHeight: Math.max(iconItem.height, texts.implicitHeight)

            Picture {
                id: iconItem

                objectName: "lensPlaceIcon"
                anchors.left: parent.left
                y: Math.max(0, Math.round((lines.height - height) / 2))
                width: 34
                height: 34
                image: head.lens.placeIcon
            }

            Column {
                id: texts

                anchors.left: iconItem.right
                anchors.leftMargin: 12
                anchors.right: parent.right
                spacing: 2

                // The icon is centred on these, whether the line below them has a text or not.
                Column {
                    id: lines

                    width: parent.width
                    spacing: 2

                    Label {
                        objectName: "lensName"
                        width: parent.width
                        text: head.lens.place
                        size: 15
                        font.weight: Font.DemiBold
                        elide: Text.ElideMiddle
                        Accessible.role: Accessible.Heading
                    }

                    Label {
                        objectName: "lensPlaceLine"
                        width: parent.width
                        text: head.lens.placeLine
                        size: 11
                        soft: true
                    }
                }

                // Keeps its height without a text, so that the list stays where it is.
                Label {
                    objectName: "lensLoose"
                    width: parent.width
                    text: head.lens.looseLine
                    size: 11
                    soft: true
                    wrapMode: Text.Wrap
                    mute: text === ""
                }
            }
        }

        Row {
            anchors.left: parent.left
            spacing: 0

            Label {
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Select:")
                size: 11
                soft: true
                mute: true
            }

            MenuButton {
                objectName: "lensSelect"
                anchors.verticalCenter: parent.verticalCenter
                text: head.lens.selectTitle
                said: qsTr("Select:")

                MenuRow {
                    objectName: "lensSelectAll"
                    text: qsTr("All")
                    onTriggered: head.lens.selectAll()
                }
                MenuRow {
                    objectName: "lensSelectNone"
                    text: qsTr("None")
                    onTriggered: head.lens.selectNone()
                }
            }
        }
    }

    Divider {
        width: parent.width
        anchors.bottom: parent.bottom
    }
}
