// SPDX-License-Identifier: MIT
// The texts inside the scan button in one phase. Cross-fades with the other faces; empty lines take no space.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Column {
    id: lines

    required property bool shown
    property string symbol: ""
    // A word, or a number of bytes in its place.
    property string title: ""
    property real bytes: NaN
    required property real titleSize
    // How the number animates, as in AnimatedNumber.
    property int duration: 0
    property int interval: 0
    required property string caption
    property string hint: ""

    // The usable width of the disc. Everything is scaled down to fit it.
    readonly property real room: 152
    readonly property real fit: Math.min(1, lines.room / Math.max(1, lines.implicitWidth))

    anchors.centerIn: parent
    spacing: 2
    opacity: lines.shown ? 1 : 0
    scale: lines.fit * (lines.shown ? 1 : 0.9)
    // Visible from the start, so that a number set then animates.
    visible: lines.shown || opacity > 0

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
        name: lines.symbol
        color: Theme.accentInk
        size: 34
        visible: name !== ""
    }

    AnimatedNumber {
        anchors.horizontalCenter: parent.horizontalCenter
        value: lines.bytes
        phrase: lines.title
        duration: lines.duration
        interval: lines.interval
        color: Theme.accentInk
        pixelSize: lines.titleSize
        bold: true
        mute: true
    }

    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        text: lines.caption
        color: Theme.accentInk
        opacity: 0.8
        font.pixelSize: Math.round(11 * TextScale.factor)
        font.weight: Font.Medium
        Accessible.ignored: true
    }

    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        topPadding: 8
        text: lines.hint
        color: Theme.accentInk
        opacity: 0.7
        font.pixelSize: Math.round(10 * TextScale.factor)
        font.weight: Font.DemiBold
        visible: text !== ""
        Accessible.ignored: true
    }
}
