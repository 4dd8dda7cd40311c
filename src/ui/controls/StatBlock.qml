// SPDX-License-Identifier: MIT
// A number with its label above it.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Column {
    id: block

    required property string label
    required property real value
    property alias format: figure.format
    property bool accent: false

    spacing: 4

    Label {
        anchors.left: parent.left
        text: block.label
        size: 11
        soft: true
    }

    AnimatedNumber {
        id: figure

        anchors.left: parent.left
        value: block.value
        pixelSize: 18
        bold: true
        color: block.accent ? Theme.accent : Theme.ink
    }
}
