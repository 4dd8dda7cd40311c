// SPDX-License-Identifier: MIT
// The Trash in one row.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Item {
    id: banner

    required property TrashBannerModel trash

    implicitHeight: Math.max(tile.height, words.implicitHeight, button.implicitHeight)
    visible: banner.trash.shown

    // Whenever it comes on screen what it tells is read anew. One that is built in sight has no change to tell of.
    function appear() {
        if (banner.visible)
            banner.trash.appear();
    }

    onVisibleChanged: banner.appear()
    Component.onCompleted: banner.appear()

    Tile {
        id: tile

        anchors.verticalCenter: parent.verticalCenter
        symbol: "trash.fill"
        tint: Theme.inkSoft
    }

    Column {
        id: words

        anchors.left: tile.right
        anchors.leftMargin: 12
        anchors.right: trailing.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2
        // The keyboard waits here for what becomes of the Trash, which is read when it changes.
        Accessible.role: Accessible.Notification
        Accessible.name: Spoken.joined([title.text, banner.trash.subtitle])
        Accessible.focusable: true

        Words {
            id: title

            width: parent.width
            text: qsTr("Trash")
            size: 13
            font.weight: Font.DemiBold
        }

        Words {
            width: parent.width
            text: banner.trash.subtitle
            size: 11
            soft: true
        }
    }

    Row {
        id: trailing

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: 14

        Spinner {
            anchors.verticalCenter: parent.verticalCenter
            visible: banner.trash.busy
            side: 16
        }

        CountingText {
            anchors.verticalCenter: parent.verticalCenter
            visible: text !== ""
            text: banner.trash.figure
            bold: true
        }

        SecondaryButton {
            id: button

            objectName: "trashButton"
            anchors.verticalCenter: parent.verticalCenter
            visible: text !== ""
            text: banner.trash.action
            Accessible.name: banner.trash.actionName
            onClicked: banner.trash.act()
            onVisibleChanged: {
                if (!visible && activeFocus && words.visible)
                    words.forceActiveFocus();
            }
        }
    }
}
