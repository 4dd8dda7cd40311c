// SPDX-License-Identifier: MIT
// An overlay that marks a control as hovered or pressed, with its focus ring around it.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

Rectangle {
    id: wash

    required property T.AbstractButton control
    property color hoverColor: Theme.hoverWash
    property color pressColor: Theme.pressWash

    color: wash.control.down ? wash.pressColor : wash.control.hovered && wash.control.enabled ? wash.hoverColor : Qt.alpha(wash.hoverColor, 0)
    Behavior on color {
        QuickChange {}
    }

    FocusRing {
        shown: wash.control.visualFocus
        corner: wash.radius
    }
}
