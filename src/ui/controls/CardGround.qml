// SPDX-License-Identifier: MIT
// The background of a card that acts as a button: a panel with a soft shadow.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Item {
    id: ground

    required property real corner
    required property color outline
    property real shadowOpacity: 0.06
    property real shadowRadius: 6

    Behavior on shadowOpacity {
        NumberAnimation {
            duration: Motion.quick
        }
    }
    Behavior on shadowRadius {
        NumberAnimation {
            duration: Motion.quick
        }
    }

    SoftShadow {
        readonly property real reach: 24

        anchors.fill: parent
        anchors.margins: -reach
        inset: reach
        corner: ground.corner
        radius: ground.shadowRadius
        strength: ground.shadowOpacity
    }

    Rectangle {
        anchors.fill: parent
        radius: ground.corner
        color: Theme.surface
        border.width: 1
        border.color: ground.outline
        Behavior on border.color {
            ColorAnimation {
                duration: Motion.quick
            }
        }
    }
}
