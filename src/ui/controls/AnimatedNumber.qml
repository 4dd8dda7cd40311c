// SPDX-License-Identifier: MIT
// A number that runs to its next value, in the theme's ink. A screen reader hears that value from the start.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

NumberItem {
    id: number

    // Said by what it stands on.
    property bool mute: false

    duration: Motion.count
    color: Theme.ink
    pixelSize: 13
    Accessible.role: Accessible.Paragraph
    Accessible.name: number.text
    Accessible.ignored: number.mute
}
