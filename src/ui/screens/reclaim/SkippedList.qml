// SPDX-License-Identifier: MIT
// The items that a clean-up skipped, each with its reason.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

RowList {
    id: list

    required property var skipped

    name: qsTr("What was skipped")
    model: list.skipped
    spacing: 6

    delegate: ListRow {
        id: row

        required property int index
        required property var modelData

        implicitHeight: texts.implicitHeight + 2 * 4
        ringed: list.ringed && list.currentIndex === row.index
        Accessible.role: Accessible.ListItem
        Accessible.name: AccessibleText.joined([row.modelData.name, row.modelData.reason])

        TapHandler {
            onTapped: list.take(row.index)
        }

        FocusRing {
            shown: row.ringed
            corner: 6
        }

        Column {
            id: texts

            x: 8
            y: 4
            width: row.width - 2 * 8
            spacing: 2

            Label {
                width: parent.width
                text: row.modelData.name
                size: 12
                font.weight: Font.Medium
                elide: Text.ElideMiddle
                mute: true
            }

            Label {
                width: parent.width
                text: row.modelData.reason
                size: 11
                soft: true
                wrapMode: Text.Wrap
                mute: true
            }
        }
    }
}
