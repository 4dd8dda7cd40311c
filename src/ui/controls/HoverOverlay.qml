// SPDX-License-Identifier: MIT
// An overlay that marks a control as hovered or pressed.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

Rectangle {
    id: wash

    required property T.AbstractButton control

    color: wash.control.down ? Theme.pressWash : wash.control.hovered && wash.control.enabled ? Theme.hoverWash : Qt.alpha(Theme.hoverWash, 0)
    Behavior on color {
        ColorAnimation {
            duration: Motion.quick
        }
    }
}
