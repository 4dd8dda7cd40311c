// SPDX-License-Identifier: MIT
// A number in the theme's ink that animates to each new value. Its accessible name is the final value from the start.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

NumberItem {
    id: number

    // The control around it has the text in its own accessible name.
    property bool mute: false

    duration: Motion.count
    color: Theme.ink
    pixelSize: 13
    Accessible.role: Accessible.Paragraph
    Accessible.name: number.text
    Accessible.ignored: number.mute
}
