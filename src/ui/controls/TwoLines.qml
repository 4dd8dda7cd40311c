// SPDX-License-Identifier: MIT
// A line of text and, below it, a smaller and softer one, which takes no space if it is empty. Children follow them.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Column {
    id: lines

    required property string title
    required property string note
    property real size: 13
    property real noteSize: 11
    property int weight: Font.Normal
    // Whether each line wraps instead of being elided, there.
    property bool wraps: false
    property bool noteWraps: lines.wraps
    property int elide: Text.ElideRight
    property int alignment: Text.AlignLeft
    property real lineHeight: 1
    // Whether the title is a heading for screen readers, and whether they get neither line from here.
    property bool isHeading: false
    property bool mute: false

    readonly property real wanted: Math.max(titleText.implicitWidth, noteText.implicitWidth)

    spacing: 2

    Label {
        id: titleText

        width: parent.width
        text: lines.title
        size: lines.size
        font.weight: lines.weight
        wrapMode: lines.wraps ? Text.Wrap : Text.NoWrap
        elide: lines.wraps ? Text.ElideNone : lines.elide
        horizontalAlignment: lines.alignment
        mute: lines.mute
        Accessible.role: lines.isHeading ? Accessible.Heading : Accessible.Paragraph
    }

    Label {
        id: noteText

        width: parent.width
        text: lines.note
        visible: text !== ""
        size: lines.noteSize
        soft: true
        wrapMode: lines.noteWraps ? Text.Wrap : Text.NoWrap
        elide: lines.noteWraps ? Text.ElideNone : lines.elide
        horizontalAlignment: lines.alignment
        lineHeight: lines.lineHeight
        mute: lines.mute
    }
}
