// SPDX-License-Identifier: MIT
// A determinate progress bar. Animates to each new value, or jumps with reduced motion.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Charts
import Zelk.Controls

SharePicture {
    id: bar

    // 0 to 1.
    required property real value
    // For screen readers: the work, and how far it has come.
    required property string name
    required property string progress

    implicitWidth: 220
    implicitHeight: 6
    share: bar.value
    color: Theme.accent
    track: Theme.hairline

    Accessible.role: Accessible.ProgressBar
    Accessible.name: bar.name
    Accessible.description: bar.progress

    Behavior on share {
        NumberAnimation {
            duration: Motion.quick
        }
    }
}
