// SPDX-License-Identifier: MIT
// A determinate progress bar: a track, filled from where reading begins. Any positive share is visible at least as a dot. Animates
// to each new value, or jumps with reduced motion.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Rectangle {
    id: bar

    // 0 to 1.
    required property real value
    // For screen readers: the work, and how far it has come.
    required property string name
    required property string progress

    property real share: bar.value

    implicitWidth: 220
    implicitHeight: 6
    radius: bar.height / 2
    color: Theme.hairline

    Accessible.role: Accessible.ProgressBar
    Accessible.name: bar.name
    Accessible.description: bar.progress

    Behavior on share {
        QuickChange {}
    }

    Rectangle {
        anchors.left: parent.left
        width: Math.min(Math.max(bar.share * bar.width, bar.height), bar.width)
        height: bar.height
        radius: bar.radius
        color: Theme.accent
        visible: bar.share > 0
    }
}
