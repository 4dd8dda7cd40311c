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

        TwoLines {
            width: parent.width
            topPadding: 12
            spacing: 8
            title: empty.title
            note: empty.note
            size: 15
            noteSize: 12
            weight: Font.DemiBold
            wraps: true
            alignment: Text.AlignHCenter
            lineHeight: 1.25
            isHeading: true
        }
    }
}
