// SPDX-License-Identifier: MIT
// The background of PillButton and PillChoice.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

Rectangle {
    id: ground

    required property T.AbstractButton control
    required property color tint
    property bool chosen: false

    radius: height / 2
    color: ground.chosen ? Qt.tint(Theme.surface, Qt.alpha(ground.tint, 0.2)) : Theme.surface
    border.width: 1
    border.color: ground.chosen ? Qt.alpha(ground.tint, 0.7) : Theme.hairline

    HoverOverlay {
        anchors.fill: parent
        radius: height / 2
        control: ground.control
    }

    FocusRing {
        shown: ground.control.visualFocus
        corner: ground.height / 2
    }
}
