// SPDX-License-Identifier: MIT
// The focus ring around a control. It has the text colour, which contrasts with the background and with every control
// in both themes, accented ones included.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Rectangle {
    id: ring

    required property bool shown
    // The corner radius of the control; the ring's own is larger by the offset.
    required property real corner

    readonly property real offset: 3

    anchors.fill: parent
    anchors.margins: -ring.offset
    radius: ring.corner + ring.offset
    color: "transparent"
    border.width: 2
    border.color: Theme.ink
    visible: ring.shown
}
