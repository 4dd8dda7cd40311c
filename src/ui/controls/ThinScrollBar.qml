// SPDX-License-Identifier: MIT
// A thin bar at the edge, there while there is something to scroll.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

T.ScrollBar {
    id: bar

    implicitWidth: 10
    implicitHeight: 10
    padding: 2
    minimumSize: 0.06
    visible: bar.size < 1
    // What it scrolls is read as a whole, and has the keys for it.
    Accessible.ignored: true
    Accessible.focusable: false

    contentItem: Rectangle {
        implicitWidth: 6
        implicitHeight: 6
        radius: 3
        color: Qt.alpha(Theme.inkSoft, bar.pressed ? 0.8 : bar.hovered ? 0.6 : 0.35)
        Behavior on color {
            ColorAnimation {
                duration: Motion.quick
            }
        }
    }
}
