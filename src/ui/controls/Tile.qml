// SPDX-License-Identifier: MIT
// A symbol on a rounded square tinted in its colour.
pragma ComponentBehavior: Bound

import QtQuick

Rectangle {
    id: tile

    required property string symbol
    required property color tint
    property real side: 34
    property real symbolSize: 15
    property real corner: 10

    implicitWidth: tile.side
    implicitHeight: tile.side
    radius: tile.corner
    color: Qt.alpha(tile.tint, 0.16)

    TextSymbol {
        anchors.centerIn: parent
        name: tile.symbol
        color: tile.tint
        points: tile.symbolSize
    }
}
