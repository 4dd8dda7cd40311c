// SPDX-License-Identifier: MIT
// The bar of work whose end nobody knows. It runs while it is seen; with reduced motion it rests in the middle.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

ProgressPicture {
    id: bar

    required property color tint
    // What a screen reader says: whose work it is, and what is done.
    property string name: ""
    property string doing: ""
    property real barWidth: 220

    // Of one run of the sliver, and where it stands in the middle.
    readonly property real period: 1.5
    property real clock

    implicitWidth: bar.barWidth
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
