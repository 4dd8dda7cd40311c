// SPDX-License-Identifier: MIT
// A progress bar. Without a share it is indeterminate: a segment moves while it is visible, and rests in the middle with
// reduced motion.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

ProgressPicture {
    id: bar

    required property color tint
    // How much is done, from 0 to 1; negative if that is not known. (Not the property of the picture, all of which have
    // one signal: the animation would depend on what it changes.)
    property real share: -1
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
    part: bar.share
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
        running: bar.visible && bar.share < 0 && !Motion.reduced
    }
}
