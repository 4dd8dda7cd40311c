// SPDX-License-Identifier: MIT
// The texts and controls below the scan button in one phase. Fades in, but disappears at once, because a control that
// fades out could still be pressed.
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
