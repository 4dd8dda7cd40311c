// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

T.MenuBarItem {
    id: item

    // The toolkit's mark for the key that goes with Alt.
    readonly property string plainText: item.menu?.title ?? ""

    objectName: "menuTitle" + item.plainText
    text: "&" + item.plainText
    // Menus have keys of their own, and leave the keyboard where it is.
    focusPolicy: Qt.NoFocus
    implicitWidth: label.implicitWidth + 20
    implicitHeight: Math.max(24, label.implicitHeight + 6)
    Accessible.name: item.plainText
    // Qt 6.4 gives it the role of a menu bar whatever it is told, so a screen reader gets its content instead.
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

        Words {
            id: label

            anchors.centerIn: parent
            text: item.plainText
            size: 12
            mute: true
            font.weight: Font.Medium
        }
    }
}
