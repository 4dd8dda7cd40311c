// SPDX-License-Identifier: MIT
// A row of a RowList, as wide as the list.
import QtQuick

Item {
    id: row

    width: ListView.view?.width ?? 0

    // One that waits to be used again would still be said to a screen reader.
    ListView.onPooled: row.visible = false
    ListView.onReused: row.visible = true
}
