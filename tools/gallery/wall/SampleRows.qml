// SPDX-License-Identifier: MIT
// A list with a long text in its third row.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

RowList {
    id: list

    required property string longText

    name: "Rows"
    height: 148 * TextScale.factor

    delegate: ListRow {
        id: row

        required property int index

        implicitHeight: words.implicitHeight + 16
        ringed: list.ringed && row.ListView.isCurrentItem

        Label {
            id: words

            x: 12
            y: 8
            width: parent.width - 24
            text: row.index === 2 ? list.longText : "Row " + row.index
        }
        FocusRing {
            anchors.margins: 4
            shown: row.ringed
            corner: 4
        }
    }
}
