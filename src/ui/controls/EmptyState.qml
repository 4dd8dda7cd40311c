// SPDX-License-Identifier: MIT
// What an empty list shows instead of rows: a symbol, a title and an optional hint.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Item {
    id: empty

    required property string symbol
    required property string title
    property string note: ""

    implicitHeight: column.implicitHeight

    Column {
        id: column

        anchors.centerIn: parent
        width: Math.min(360, parent.width - 2 * 26)
        spacing: 8

        SymbolItem {
            anchors.horizontalCenter: parent.horizontalCenter
            name: empty.symbol
            color: Theme.inkSoft
            size: 34
            opacity: 0.7
        }

        Item {
            width: 1
            height: 4
        }

        Label {
            width: parent.width
            text: empty.title
            size: 15
            font.weight: Font.DemiBold
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            Accessible.role: Accessible.Heading
        }

        Label {
            width: parent.width
            text: empty.note
            visible: text !== ""
            size: 12
            soft: true
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            lineHeight: 1.25
        }
    }
}
