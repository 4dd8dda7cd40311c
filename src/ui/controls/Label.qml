// SPDX-License-Identifier: MIT
// Base label: plain text in the theme's colour, scaled by TextScale. Read by screen readers unless `mute`.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Text {
    id: words

    // Font size in points, before scaling.
    property real size: 13
    // Secondary text.
    property bool soft: false
    // Hides it from screen readers, where the control around it has the text as its name.
    property bool mute: false

    color: words.soft ? Theme.inkSoft : Theme.ink
    font.pixelSize: Math.round(words.size * TextScale.factor)
    textFormat: Text.PlainText
    // Set explicitly, since by default it follows the text direction: a Hebrew name would be far from its icon.
    horizontalAlignment: Text.AlignLeft
    elide: words.wrapMode === Text.NoWrap ? Text.ElideRight : Text.ElideNone
    // Not StaticText, which Qt 6.4 reports as focusable in any case.
    Accessible.role: Accessible.Paragraph
    Accessible.name: words.text
    Accessible.ignored: words.mute
}
