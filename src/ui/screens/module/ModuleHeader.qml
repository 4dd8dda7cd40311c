// SPDX-License-Identifier: MIT
// The header of a module's results: symbol, title and subtitle, and an optional control at the right.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Item {
    id: header

    required property string symbol
    required property color tint
    required property string title
    required property string subtitle
    property Component trailing: null

    implicitHeight: Math.max(tile.height, texts.implicitHeight, trailingView.implicitHeight) + 2 * 16

    Tile {
        id: tile

        anchors.left: parent.left
        anchors.leftMargin: Theme.pageMargin
        anchors.verticalCenter: parent.verticalCenter
        symbol: header.symbol
        tint: header.tint
        side: 38
        symbolSize: 17
    }

    Column {
        id: texts

        anchors.left: tile.right
        anchors.leftMargin: 12
        anchors.right: trailingView.left
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        Label {
            width: parent.width
            text: header.title
            size: 18
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
        Label {
            width: parent.width
            text: header.subtitle
            size: 11
            soft: true
            wrapMode: Text.WordWrap
            visible: text !== ""
        }
    }

    Loader {
        id: trailingView

        anchors.right: parent.right
        anchors.rightMargin: Theme.pageMargin
        anchors.verticalCenter: parent.verticalCenter
        sourceComponent: header.trailing
    }

    Rectangle {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: 1
        color: Theme.hairline
    }
}
