// SPDX-License-Identifier: MIT
// A row about the Trash, with a button to empty it.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Item {
    id: banner

    required property TrashBannerModel trash

    implicitHeight: Math.max(tile.height, words.implicitHeight, button.implicitHeight)
    visible: banner.trash.shown

    // Reads the Trash again whenever the banner becomes visible; onCompleted covers one that is created visible.
    function appear() {
        if (banner.visible)
            banner.trash.appear();
    }

    onVisibleChanged: banner.appear()
    Component.onCompleted: banner.appear()

    Tile {
        id: tile

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        symbol: "trash.fill"
        tint: Theme.inkSoft
    }

    TwoLines {
        id: words

        anchors.left: tile.right
        anchors.leftMargin: 12
        anchors.right: trailing.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        // Holds the focus when the button disappears, so that screen readers announce the new state of the Trash.
        Accessible.role: Accessible.Notification
        Accessible.name: AccessibleText.joined([words.title, banner.trash.subtitle])
        Accessible.focusable: true
        title: qsTr("Trash")
        note: banner.trash.subtitle
        weight: Font.DemiBold
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

        AnimatedNumber {
            anchors.verticalCenter: parent.verticalCenter
            visible: banner.trash.known
            value: banner.trash.bytes
            bold: true
        }

        Button {
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
