// SPDX-License-Identifier: MIT
// A virtualized list with one stop in the focus chain. The arrows, Home, End and the page keys move the current row;
// the screen handles other keys. A delegate draws the focus ring if `ringed` is set and it is the current item, and
// calls `take` when pressed.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

ListView {
    id: list

    required property string name

    // Whether the current row has visible focus.
    readonly property bool ringed: list.activeFocus && list.byKey
    property bool byKey: false
    // Whether the user chose the current row, by a key or with the pointer. After merely entering the screen it is
    // nobody's choice, and a key that removes a row must ignore it.
    property bool rowChosen: false

    signal moved

    function take(row: int) {
        list.byKey = false;
        list.rowChosen = true;
        list.currentIndex = row;
        list.forceActiveFocus(Qt.MouseFocusReason);
    }

    function go(row: int) {
        list.byKey = true;
        list.rowChosen = true;
        list.currentIndex = Math.min(Math.max(row, 0), list.count - 1);
        list.positionViewAtIndex(list.currentIndex, ListView.Contain);
        // The margin below the last row comes with it.
        const bottom = (list.currentItem?.y ?? 0) + (list.currentItem?.height ?? 0) + list.bottomMargin;
        if (list.currentIndex === list.count - 1)
            list.contentY = Math.max(list.contentY, bottom - list.height);
        list.moved();
    }

    // Rows per page, estimated from the height of the current row.
    readonly property int page: Math.max(1, Math.floor(list.height / Math.max(list.currentItem?.height ?? 0, 24)) - 1)

    clip: true
    boundsBehavior: Flickable.StopAtBounds
    activeFocusOnTab: true
    keyNavigationEnabled: false
    highlightFollowsCurrentItem: false
    reuseItems: true

    Accessible.role: Accessible.List
    Accessible.name: list.name

    onActiveFocusChanged: {
        if (list.activeFocus && list.currentIndex < 0 && list.count > 0)
            list.currentIndex = 0;
    }

    // Keeps the position when rows change, clamped to the last row.
    onCountChanged: {
        if (list.count > 0 && list.currentIndex >= list.count)
            list.currentIndex = list.count - 1;
    }

    Keys.onPressed: event => {
        event.accepted = true;
        if (event.key === Qt.Key_Up)
            list.go(list.currentIndex - 1);
        else if (event.key === Qt.Key_Down)
            list.go(list.currentIndex + 1);
        else if (event.key === Qt.Key_PageUp)
            list.go(list.currentIndex - list.page);
        else if (event.key === Qt.Key_PageDown)
            list.go(list.currentIndex + list.page);
        else if (event.key === Qt.Key_Home)
            list.go(0);
        else if (event.key === Qt.Key_End)
            list.go(list.count - 1);
        else
            event.accepted = false;
    }

    // Shows the focus ring when the list was reached by Tab.
    Keys.onReleased: event => {
        if (event.key === Qt.Key_Tab || event.key === Qt.Key_Backtab) {
            list.byKey = true;
            list.rowChosen = true;
        }
    }

    onVisibleChanged: list.rowChosen = false
    onEnabledChanged: list.rowChosen = false

    T.ScrollBar.vertical: ThinScrollBar {}

    RowOrder {
        content: list.contentItem
    }
}
