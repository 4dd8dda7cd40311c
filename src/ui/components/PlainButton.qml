// SPDX-License-Identifier: MIT
// A button that is only its word until the pointer or the keyboard comes to it.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Theme

BaseButton {
    id: plain

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: 32
    leftPadding: 16
    rightPadding: 16

    opacity: plain.down ? 0.7 : 1

    background: Rectangle {
        radius: height / 2
        color: plain.hovered || plain.visualFocus ? Theme.surfaceHi : "transparent"
        border.width: 1
        border.color: Theme.hairline
        Behavior on color {
            ColorAnimation {
                duration: Motion.quick
            }
        }

        FocusRing {
            shown: plain.visualFocus
            corner: plain.height / 2
        }
    }

    contentItem: Text {
        text: plain.text
        color: plain.hovered || plain.visualFocus ? Theme.ink : Theme.inkSoft
        font.pixelSize: 12
        font.weight: Font.Medium
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
}
