// SPDX-License-Identifier: MIT
// Where the keyboard is: a line around the control, a little off it. In the colour of the text, which stands out from
// the ground in both themes and from every control, the accent's own too.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Rectangle {
    id: ring

    required property bool shown
    // Of the control itself; the ring's own is as much larger as it stands off.
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
