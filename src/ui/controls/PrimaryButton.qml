// SPDX-License-Identifier: MIT
// The one thing that a screen asks for, in the accent gradient.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

BaseButton {
    id: primary

    // Of the text, in points.
    property real size: 13
    property string symbol: ""
    // What it does cannot be undone.
    property bool alarming: false
    // What is written on it.
    property color textColor: Theme.accentInk

    readonly property real corner: 12

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    horizontalPadding: 28
    verticalPadding: 15

    opacity: primary.enabled ? 1 : 0.45
    scale: primary.down ? 0.98 : 1
    Behavior on scale {
        NumberAnimation {
            duration: Motion.quick
        }
    }

    background: Item {
        AccentFill {
            anchors.fill: parent
            corner: primary.corner
            visible: !primary.alarming
        }

        Rectangle {
            anchors.fill: parent
            radius: primary.corner
            color: Theme.alert
            visible: primary.alarming
        }

        // Light under the pointer, shade under the finger, on either theme.
        Rectangle {
            anchors.fill: parent
            radius: primary.corner
            color: primary.down ? "#14000000" : primary.hovered && primary.enabled ? "#26ffffff" : "#00ffffff"
            Behavior on color {
                ColorAnimation {
                    duration: Motion.quick
                }
            }
        }

        FocusRing {
            shown: primary.visualFocus
            corner: primary.corner
        }
    }

    contentItem: ButtonLabel {
        text: primary.text
        symbol: primary.symbol
        size: primary.size
        color: primary.textColor
        weight: Font.DemiBold
    }
}
