// SPDX-License-Identifier: MIT
// A figure that runs to its next value and is said as a text. The model gives the last text at once.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

FigureText {
    id: figure

    // Said by what it stands on.
    property bool mute: false

    duration: Motion.count
    color: Theme.ink
    pixelSize: 13
    Accessible.role: Accessible.Paragraph
    Accessible.name: figure.text
    Accessible.ignored: figure.mute
}
