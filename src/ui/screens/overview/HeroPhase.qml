// SPDX-License-Identifier: MIT
// What stands under the button in one phase. The next one fades in over it and it is gone at once: a leaving control
// must not be pressed any more.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Column {
    id: phase

    required property bool shown

    anchors.left: parent.left
    anchors.right: parent.right
    visible: phase.shown
    opacity: phase.shown ? 1 : 0

    Behavior on opacity {
        enabled: phase.shown
        NumberAnimation {
            duration: Motion.gentle
            easing.type: Easing.OutCubic
        }
    }
}
