// SPDX-License-Identifier: MIT
// The states of RowList.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Section {
    id: lists

    required property string longText

    title: "Lists: normal, focused, empty"

    Row {
        width: parent.width
        spacing: 24

        readonly property real share: (width - 3 * spacing) / 4

        SampleRows {
            width: parent.share
            longText: lists.longText
            model: 9
        }
        SampleRows {
            objectName: "focused"
            width: parent.share
            longText: lists.longText
            model: 3
        }
        EmptyState {
            width: parent.share
            symbol: "tray"
            title: "Nothing here"
        }
        EmptyState {
            width: parent.share
            symbol: "checkmark.seal"
            title: "Nothing that old, whatever the name of it may be"
            note: "Everything found was in use more recently."
        }
    }
}
