// SPDX-License-Identifier: MIT
// A tick. It shows what it is told and never more: who hears the press decides whether that changes.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

BaseButton {
    id: box

    required property bool on
    property real side: 18

    implicitWidth: Math.round((box.side + 8) * TextScale.factor)
    implicitHeight: implicitWidth
    opacity: box.enabled ? 1 : 0.45

    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: box.on
    Accessible.onToggleAction: {
        if (box.enabled)
            box.clicked();
    }

    background: Item {
        Rectangle {
            anchors.centerIn: parent
            width: Math.round(box.side * TextScale.factor)
            height: width
            radius: 5
            color: box.on ? Theme.accent : Theme.surfaceHi
            border.width: box.on ? 0 : 1
            border.color: box.hovered && box.enabled ? Theme.inkSoft : Qt.alpha(Theme.inkSoft, 0.6)

            // One that comes into sight, perhaps in a row that showed something else, is as it is.
            Behavior on color {
                enabled: box.visible
                ColorAnimation {
                    duration: Motion.quick
                }
            }

            Wash {
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

            FocusRing {
                shown: box.visualFocus
                corner: 5
            }
        }
    }
}
