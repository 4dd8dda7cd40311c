// SPDX-License-Identifier: MIT
// The base of a RowList delegate, as wide as the list. The list sets `ringed` while it has visible focus.
import QtQuick

Item {
    id: row

    property bool ringed: false

    width: ListView.view?.width ?? 0

    // The list has the active focus; screen readers are told that the current row has it.
    Accessible.focusable: true
    Accessible.focused: row.ringed

    // Screen readers would still find a pooled delegate.
    ListView.onPooled: row.visible = false
    ListView.onReused: {
        row.visible = true;
        // Qt 6.8 sets it in the pool and leaves it there.
        row.Accessible.ignored = false;
    }
}
