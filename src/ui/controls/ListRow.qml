// SPDX-License-Identifier: MIT
// A row of a RowList, as wide as the list, which tells it where to show that the keyboard is at it.
import QtQuick

Item {
    id: row

    property bool ringed: false

    width: ListView.view?.width ?? 0

    // The keyboard is the list's, and what it is at is the row.
    Accessible.focusable: true
    Accessible.focused: row.ringed

    // One that waits to be used again would still be said to a screen reader.
    ListView.onPooled: row.visible = false
    ListView.onReused: row.visible = true
}
