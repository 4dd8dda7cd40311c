// SPDX-License-Identifier: MIT
// The title of a menu in MenuStrip.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

T.MenuBarItem {
    id: item

    // `text` has an ampersand for the mnemonic.
    readonly property string plainText: item.menu?.title ?? ""

    objectName: "menuTitle" + item.plainText
    text: "&" + item.plainText
    // Menus handle the keyboard themselves, and the focus stays where it is.
    focusPolicy: Qt.NoFocus
    implicitWidth: label.implicitWidth + 20
    implicitHeight: Math.max(24, label.implicitHeight + 6)
    Accessible.name: item.plainText
    // Qt 6.4 always reports the role of a menu bar here, so the content item is accessible instead.
    Accessible.ignored: true

    background: Rectangle {
        radius: 6
        color: item.highlighted || item.down ? Theme.surfaceHi : "transparent"

        FocusRing {
            shown: item.visualFocus
            corner: 6
        }
    }

    Item {
        id: content

        x: item.leftPadding
        y: item.topPadding
        width: item.availableWidth
        height: item.availableHeight

        Accessible.role: Accessible.MenuItem
        Accessible.name: item.plainText
        Accessible.onPressAction: item.triggered()

        Label {
            id: label

            anchors.centerIn: parent
            text: item.plainText
            size: 12
            mute: true
            font.weight: Font.Medium
        }
    }
}
