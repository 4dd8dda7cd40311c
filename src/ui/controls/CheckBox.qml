// SPDX-License-Identifier: MIT
// A check box that shows `on`. A click does not toggle it: the handler of `clicked` decides whether `on` changes.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

T.CheckBox {
    id: box

    // The accessible name; not drawn.
    required text
    required property bool on

    implicitWidth: Math.round(26 * TextScale.factor)
    implicitHeight: implicitWidth
    opacity: box.enabled ? 1 : 0.45

    checked: box.on
    nextCheckState: () => box.on ? Qt.Checked : Qt.Unchecked
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    Keys.forwardTo: [buttonKeys]

    Accessible.name: box.text
    Accessible.checkable: true
    Accessible.onPressAction: buttonKeys.press(false)
    Accessible.onToggleAction: buttonKeys.press(false)

    ButtonKeys {
        id: buttonKeys

        control: box
    }

    background: Item {
        Rectangle {
            anchors.centerIn: parent
            width: Math.round(18 * TextScale.factor)
            height: width
            radius: 5
            color: box.on ? Theme.accent : Theme.surfaceHi
            border.width: box.on ? 0 : 1
            border.color: box.hovered && box.enabled ? Theme.inkSoft : Qt.alpha(Theme.inkSoft, 0.6)

            // Sets the colour at once while hidden: a reused delegate must not animate from its previous row.
            Behavior on color {
                enabled: box.visible
                QuickChange {}
            }

            HoverOverlay {
                anchors.fill: parent
                radius: parent.radius
                control: box
            }

            SymbolItem {
                anchors.centerIn: parent
                name: "checkmark"
                color: Theme.accentInk
                size: Math.round(11 * TextScale.factor)
                visible: box.on
            }
        }
    }
}
