// SPDX-License-Identifier: MIT
// The main action of a screen, filled with the accent gradient.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

BaseButton {
    id: primary

    // Font size in points, before TextScale.
    property real size: 13
    property string symbol: ""
    // Marks an action that cannot be undone.
    property bool alarming: false
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

        // Lightens on hover and darkens while pressed, in both themes.
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
