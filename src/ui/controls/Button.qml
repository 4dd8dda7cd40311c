// SPDX-License-Identifier: MIT
// A button with a text and an optional symbol. Its kind says how much attention the action asks for.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

BaseButton {
    id: button

    enum Kind {
        Secondary, // beside the main action of a screen
        Primary,   // the main action, filled with the accent gradient
        Plain,     // subdued until it is hovered or has visible focus
        Pill,      // a capsule whose symbol has a colour of its own
        Link,      // looks like a link
        Removal    // accented while it is enabled, else subdued
    }

    property int kind: Button.Secondary
    property string symbol: ""
    // The colour of the symbol.
    property color tint: button.textColor
    // Marks a primary action that cannot be undone.
    property bool alarming: false

    // A table with a line per property and a column per kind. The size is that of the font in points, before TextScale.
    property real size: [12, 13, 12, 12, 12, 13][button.kind]
    property color textColor: [Theme.ink, Theme.accentInk, button.hovered || button.visualFocus ? Theme.ink : Theme.inkSoft, Theme.ink, Theme.accentText, button.enabled ? "white" : Theme.inkSoft][button.kind]
    readonly property bool accented: button.kind === Button.Primary ? !button.alarming : button.kind === Button.Removal && button.enabled
    readonly property real corner: [10, 12, button.height / 2, button.height / 2, 4, 10][button.kind]
    readonly property real lowest: [0, 0, 32, 36, 0, 0][button.kind]
    horizontalPadding: [16, 28, 16, 14, 2, 18][button.kind]
    verticalPadding: [8, 15, 6, 8, 4, 10][button.kind]
    scale: button.down ? [1, 0.98, 1, 0.97, 1, 0.98][button.kind] : 1

    // Of a capsule, the end of the text is further from the edge than the symbol.
    leftPadding: button.kind === Button.Pill && ReadingDirection.mirrored ? 16 : button.horizontalPadding
    rightPadding: button.kind === Button.Pill && !ReadingDirection.mirrored ? 16 : button.horizontalPadding
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(button.lowest, implicitContentHeight + topPadding + bottomPadding)
    opacity: button.enabled ? (button.kind === Button.Link && button.down ? 0.7 : 1) : button.kind === Button.Removal ? 1 : 0.45

    Behavior on scale {
        QuickChange {}
    }

    background: Rectangle {
        radius: button.corner
        color: [Theme.surfaceHi, button.alarming ? Theme.alert : "transparent", "transparent", Theme.surface, "transparent", Theme.surfaceHi][button.kind]
        border.width: [1, 0, 1, 1, 0, 1][button.kind]
        border.color: Theme.hairline

        AccentFill {
            // Qt Quick paints hidden items too, but none without a size.
            width: button.accented ? parent.width : 0
            height: parent.height
            corner: button.corner
            visible: button.accented
        }

        HoverOverlay {
            anchors.fill: parent
            radius: button.corner
            control: button
            // On the accent it lightens on hover and darkens while pressed, in both themes. A link is only underlined.
            hoverColor: button.kind === Button.Primary ? "#26ffffff" : button.kind === Button.Link ? "transparent" : Theme.hoverWash
            pressColor: button.kind === Button.Primary ? "#14000000" : button.kind === Button.Link ? "transparent" : Theme.pressWash
        }
    }

    contentItem: ButtonLabel {
        text: button.text
        symbol: button.symbol
        symbolColor: button.tint
        color: button.textColor
        size: button.size
        weight: button.kind === Button.Primary ? Font.DemiBold : Font.Medium
        underlined: button.kind === Button.Link && button.hovered && button.enabled
        shaded: button.kind === Button.Removal && button.enabled
    }
}
