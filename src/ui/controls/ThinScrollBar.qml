// SPDX-License-Identifier: MIT
// A thin scroll bar, visible while the content overflows.
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
    // Screen readers see the whole content, and the keyboard scrolls the area itself.
    Accessible.ignored: true
    Accessible.focusable: false

    contentItem: Rectangle {
        implicitWidth: 6
        implicitHeight: 6
        radius: 3
        color: Qt.alpha(Theme.inkSoft, bar.pressed ? 0.8 : bar.hovered ? 0.6 : 0.35)
        Behavior on color {
            QuickChange {}
        }
    }
}
