// SPDX-License-Identifier: MIT
// The tool tip of a bubble. Transparent to clicks and hidden from screen readers: the bubble's node says the same.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Charts
import Zelk.Controls

PanelGround {
    id: card

    required property bubbleTip tip

    readonly property real room: card.tip.widest - 2 * lines.x

    x: card.tip.corner.x
    y: card.tip.corner.y
    width: lines.width + 2 * lines.x
    height: lines.height + 2 * lines.y
    visible: card.tip.shown
    radius: 6
    lift: 10
    color: Qt.alpha(Theme.surfaceHi, 0.94)

    Column {
        id: lines

        x: 8
        y: 8
        spacing: 2

        Label {
            width: Math.min(implicitWidth, card.room)
            text: card.tip.label
            size: 12
            mute: true
        }

        Label {
            width: Math.min(implicitWidth, card.room)
            text: card.tip.line
            size: 11
            font.weight: Font.Medium
            font.family: Typeface.fixed
            color: card.tip.reclaimable ? Theme.accentText : Theme.ink
            mute: true
        }
    }
}
