// SPDX-License-Identifier: MIT
// The content of StepperField: the label at the left, and the value centred in its box at the right.
pragma ComponentBehavior: Bound

import QtQuick

Item {
    id: face

    required property string label
    required property string number
    required property real size
    required property real boxWidth

    readonly property real nameWidth: name.implicitWidth
    readonly property real numberWidth: figure.implicitWidth

    implicitHeight: Math.max(name.implicitHeight, figure.implicitHeight)

    Label {
        id: name

        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, Math.max(0, face.width - face.boxWidth - 12))
        text: face.label
        size: face.size
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        mute: true
    }

    Label {
        id: figure

        x: face.width - face.boxWidth / 2 - width / 2
        anchors.verticalCenter: parent.verticalCenter
        text: face.number
        size: face.size
        font.weight: Font.Medium
        mute: true
    }
}
