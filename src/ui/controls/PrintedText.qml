// SPDX-License-Identifier: MIT
// What a command printed: a text from left to right in the fixed font, whatever the direction of the application.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Label {
    font.family: Theme.fixedFont
    // Where layouts are mirrored, this is the left.
    horizontalAlignment: ReadingDirection.mirrored ? Text.AlignRight : Text.AlignLeft
}
