// SPDX-License-Identifier: MIT
// The base of a RowList delegate, as wide as the list. The list sets `ringed` while it has visible focus. A click emits
// `pressed`.
import QtQuick
import Zelk.Controls

Item {
    id: row

    // The accessible name.
    property string spoken: ""
    property bool ringed: false
    // Whether the pointer shows that a click does something.
    property bool clickable: false
    readonly property alias hovered: hover.hovered

    signal pressed

    width: ListView.view?.width ?? 0
    // One that is narrower than the list stands where reading begins. (The list view sets `x`.)
    transform: Translate {
        x: ReadingDirection.mirrored ? (row.ListView.view?.width ?? 0) - row.width : 0
    }

    // The list has the active focus; screen readers are told that the current row has it.
    Accessible.role: Accessible.ListItem
    Accessible.focusable: true
    Accessible.focused: row.ringed
    Accessible.name: row.spoken

    // Screen readers would still find a pooled delegate.
    ListView.onPooled: row.visible = false
    ListView.onReused: {
        row.visible = true;
        // Qt 6.8 sets it in the pool and leaves it there.
        row.Accessible.ignored = false;
    }

    HoverHandler {
        id: hover

        cursorShape: row.clickable ? Qt.PointingHandCursor : Qt.ArrowCursor
    }

    TapHandler {
        onTapped: row.pressed()
    }
}
