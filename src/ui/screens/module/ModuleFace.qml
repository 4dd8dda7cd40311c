// SPDX-License-Identifier: MIT
// A page of ModuleScaffold. Cross-fades with the previous one and takes no input while hidden.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

FocusScope {
    id: face

    required property bool shown

    anchors.fill: parent
    opacity: face.shown ? 1 : 0
    visible: opacity > 0
    enabled: face.shown
    focus: face.shown

    Behavior on opacity {
        NumberAnimation {
            duration: Motion.gentle
            easing.type: Easing.OutCubic
        }
    }
}
