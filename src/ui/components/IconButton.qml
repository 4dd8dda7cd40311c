// SPDX-License-Identifier: MIT
// A symbol that is pressed; its name is said, and its help stands beside it under the pointer or the keyboard.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Symbols
import Zelk.Theme

BaseButton {
    id: icon

    required property string symbol
    property string help: ""
    property color tint: Theme.inkSoft
    property real size: 14
    property real side: 30

    readonly property real corner: 8

    implicitWidth: Math.round(icon.side * TextScale.factor)
    implicitHeight: Math.round(icon.side * TextScale.factor)
    opacity: icon.enabled ? 1 : 0.45

    Accessible.description: icon.help

    background: Wash {
        radius: icon.corner
        control: icon

        FocusRing {
            shown: icon.visualFocus
            corner: icon.corner
        }
    }

    contentItem: Item {
        SymbolItem {
            anchors.centerIn: parent
            name: icon.symbol
            color: icon.hovered && icon.enabled ? Theme.ink : icon.tint
            size: Math.round(icon.size * TextScale.factor)
        }
    }

    HelpTip {
        text: icon.help
        control: icon
    }
}
