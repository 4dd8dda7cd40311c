// SPDX-License-Identifier: MIT
// What lies over everything else stands on this: a panel with a soft shadow around it.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Rectangle {
    id: panel

    // How far the shadow reaches: the higher the panel, the further.
    property real lift: 16

    color: Theme.surfaceHi
    border.width: 1
    border.color: Theme.hairline

    SoftShadow {
        objectName: "panelShadow"
        anchors.fill: parent
        anchors.margins: -inset
        z: -1
        inset: radius + drop
        corner: panel.radius
        radius: panel.lift
        drop: panel.lift / 4
        strength: Theme.isDark ? 0.6 : 0.22
    }
}
