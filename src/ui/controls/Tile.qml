// SPDX-License-Identifier: MIT
// A symbol on a rounded square tinted in its colour.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Rectangle {
    id: tile

    required property string symbol
    required property color tint
    // Before scaling with the text.
    property real side: 34
    property real symbolSize: 15
    property real corner: 10

    implicitWidth: Math.round(tile.side * TextScale.factor)
    implicitHeight: implicitWidth
    radius: tile.corner
    color: Qt.alpha(tile.tint, 0.16)

    TextSymbol {
        anchors.centerIn: parent
        name: tile.symbol
        color: tile.tint
        points: tile.symbolSize
    }
}
