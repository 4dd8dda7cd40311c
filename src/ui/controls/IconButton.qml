// SPDX-License-Identifier: MIT
// A button that shows only a symbol, with `text` as its accessible name and `help` as its tool tip.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

BaseButton {
    id: button

    required property string symbol
    property string help: ""
    property color tint: Theme.inkSoft
    property real size: 14
    property real side: 30
    // From an edge of the button to its symbol. As a negative margin it puts the symbol at the edge of what is around.
    readonly property real overhang: (button.implicitWidth - button.symbolSize) / 2
    // As drawn.
    readonly property real symbolSize: Math.round(button.size * TextScale.factor)

    implicitWidth: Math.round(button.side * TextScale.factor)
    implicitHeight: Math.round(button.side * TextScale.factor)
    opacity: button.enabled ? 1 : 0.45

    Accessible.description: button.help

    background: HoverOverlay {
        radius: 8
        control: button
    }

    contentItem: Item {
        SymbolItem {
            anchors.centerIn: parent
            name: button.symbol
            color: button.hovered && button.enabled ? Theme.ink : button.tint
            size: button.symbolSize
        }
    }

    HelpTip {
        text: button.help
        control: button
    }
}
