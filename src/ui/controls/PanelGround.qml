// SPDX-License-Identifier: MIT
// The background of whatever lies above the window: a panel with a soft shadow around it.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Rectangle {
    id: panel

    // The blur radius of the shadow: the higher the panel, the larger.
    property real lift: 16
    readonly property real drop: panel.lift / 4
    readonly property real reach: panel.lift + panel.drop

    color: Theme.surfaceHi
    border.width: 1
    border.color: Theme.hairline

    SoftShadow {
        objectName: "panelShadow"
        anchors.fill: parent
        anchors.margins: -panel.reach
        z: -1
        inset: panel.reach
        corner: panel.radius
        radius: panel.lift
        drop: panel.drop
        strength: Theme.isDark ? 0.6 : 0.22
    }
}
