// SPDX-License-Identifier: MIT
// One face of a module. It fades in where the one before it fades out, and takes no key and no click when it is not
// shown.
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
