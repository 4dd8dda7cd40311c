// SPDX-License-Identifier: MIT
// The lines inside the scan button in one phase. It fades in place of the face before it.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Charts
import Zelk.Controls

Column {
    id: lines

    required property scanFace face
    required property bool shown

    // What the disc holds across: a longer line, or a larger text, makes all of them smaller.
    readonly property real room: 152
    readonly property real fit: Math.min(1, lines.room / Math.max(1, lines.implicitWidth))

    anchors.centerIn: parent
    spacing: 2
    opacity: lines.shown ? 1 : 0
    scale: lines.fit * (lines.shown ? 1 : 0.9)
    visible: opacity > 0

    Behavior on opacity {
        NumberAnimation {
            duration: Motion.gentle
            easing.type: Easing.OutCubic
        }
    }
    Behavior on scale {
        NumberAnimation {
            duration: Motion.gentle
            easing.type: Easing.OutCubic
        }
    }

    SymbolItem {
        anchors.horizontalCenter: parent.horizontalCenter
        name: lines.face.symbol
        color: Theme.accentInk
        size: lines.face.symbolSize
        visible: name !== ""
    }

    FigureText {
        anchors.horizontalCenter: parent.horizontalCenter
        text: lines.face.title
        color: Theme.accentInk
        pixelSize: lines.face.titleSize
        bold: true
    }

    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        text: lines.face.caption
        color: Theme.accentInk
        opacity: 0.8
        font.pixelSize: Math.round(lines.face.captionSize * TextScale.factor)
        font.weight: Font.Medium
        Accessible.ignored: true
    }

    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        topPadding: 8
        text: lines.face.hint
        color: Theme.accentInk
        opacity: 0.7
        font.pixelSize: Math.round(lines.face.hintSize * TextScale.factor)
        font.weight: Font.DemiBold
        visible: text !== ""
        Accessible.ignored: true
    }
}
