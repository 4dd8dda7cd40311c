// SPDX-License-Identifier: MIT
// What lies over a control under the pointer and over a pressed one.
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
