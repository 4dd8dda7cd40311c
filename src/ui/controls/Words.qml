// SPDX-License-Identifier: MIT
// The one text of the house: plain, in the theme's ink, as large as the person reads. It says itself to a screen
// reader, unless the control that it stands on does.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Text {
    id: words

    // In points at the normal text size.
    property real size: 13
    // Steps back behind what it explains.
    property bool soft: false
    // Said by what it stands on.
    property bool mute: false

    color: words.soft ? Theme.inkSoft : Theme.ink
    font.pixelSize: Math.round(words.size * TextScale.factor)
    textFormat: Text.PlainText
    elide: words.wrapMode === Text.NoWrap ? Text.ElideRight : Text.ElideNone
    // (To Qt 6.4 a static text takes the keyboard, whatever it is told.)
    Accessible.role: Accessible.Paragraph
    Accessible.name: words.text
    Accessible.ignored: words.mute
}
