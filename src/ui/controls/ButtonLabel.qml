// SPDX-License-Identifier: MIT
// The content of a button: an optional symbol and a text, centred and elided.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Item {
    id: label

    required property string text
    required property color color
    property string symbol: ""
    property color symbolColor: label.color
    property real size: 12
    property int weight: Font.Medium
    property bool underlined: false
    // A soft shadow makes white text readable on the bright end of the accent gradient.
    property bool shaded: false

    readonly property real symbolRoom: label.symbol === "" ? 0 : picture.width + (label.text === "" ? 0 : 8)

    implicitWidth: word.implicitWidth + label.symbolRoom
    implicitHeight: Math.max(word.implicitHeight, label.symbol === "" ? 0 : picture.height)

    Row {
        anchors.centerIn: parent
        spacing: 8

        TextSymbol {
            id: picture

            anchors.verticalCenter: parent.verticalCenter
            visible: label.symbol !== ""
            name: label.symbol
            color: label.symbolColor
            points: label.size
        }

        Label {
            id: word

            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, Math.max(0, label.width - label.symbolRoom))
            text: label.text
            size: label.size
            color: label.color
            font.weight: label.weight
            font.underline: label.underlined
            mute: true
            visible: label.text !== ""

            TextShadow {
                objectName: "textShadow"
                // Qt Quick paints hidden items too, but none without a size.
                x: -reach
                y: -reach
                width: label.shaded ? word.width + 2 * reach : 0
                height: label.shaded ? word.height + 2 * reach : 0
                z: -1
                line: word.text
                font: word.font
                visible: label.shaded
            }
        }
    }
}
