// SPDX-License-Identifier: MIT
// A small capsule that leads to a module.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Symbols
import Zelk.Theme

BaseButton {
    id: pill

    required property string symbol
    required property color tint

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: 36
    leftPadding: 14
    rightPadding: 16

    scale: pill.down ? 0.97 : 1
    Behavior on scale {
        NumberAnimation {
            duration: Motion.quick
        }
    }

    background: Rectangle {
        radius: height / 2
        color: pill.hovered || pill.visualFocus ? Theme.surfaceHi : Theme.surface
        border.width: 1
        border.color: Theme.hairline
        Behavior on color {
            ColorAnimation {
                duration: Motion.quick
            }
        }

        FocusRing {
            shown: pill.visualFocus
            corner: pill.height / 2
        }
    }

    contentItem: Row {
        spacing: 8

        SymbolItem {
            anchors.verticalCenter: parent.verticalCenter
            name: pill.symbol
            color: pill.tint
            size: 12
        }

        Text {
            anchors.verticalCenter: parent.verticalCenter
            text: pill.text
            color: Theme.ink
            font.pixelSize: 12
            font.weight: Font.Medium
            Accessible.ignored: true
        }
    }
}
