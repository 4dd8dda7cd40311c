// SPDX-License-Identifier: MIT
// An indeterminate progress bar, animated while visible. With reduced motion the segment rests in the middle.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

ProgressPicture {
    id: bar

    required property color tint
    // For screen readers: whose work it is, and its progress.
    property string name: ""
    property string doing: ""

    // Seconds per pass; at half of it the segment is in the middle.
    readonly property real period: 1.5
    property real clock

    implicitWidth: 220
    implicitHeight: 6
    color: bar.tint
    track: Theme.hairline
    seconds: Motion.reduced ? bar.period / 2 : bar.clock

    Accessible.role: Accessible.ProgressBar
    Accessible.name: bar.name
    Accessible.description: bar.doing
    Accessible.ignored: bar.name === ""

    NumberAnimation on clock {
        from: 0
        to: bar.period
        duration: bar.period * 1000
        loops: Animation.Infinite
        running: bar.visible && !Motion.reduced
    }
}
