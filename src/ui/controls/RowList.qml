// SPDX-License-Identifier: MIT
// A list of which only the rows in sight are made, and one stop for the Tab key: the arrows, Home, End and the page
// keys go through its rows. What other keys do to the current row is the screen's affair. A row shows the ring where
// `ringed` and it is the current one, and calls `take` when it is pressed.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

ListView {
    id: list

    required property string name

    // Whether the keyboard goes through the rows, and not only the pointer.
    readonly property bool ringed: list.activeFocus && list.byKey
    property bool byKey: false

    signal moved

    function take(row: int) {
        list.byKey = false;
        list.currentIndex = row;
        list.forceActiveFocus(Qt.MouseFocusReason);
    }

    function go(row: int) {
        list.byKey = true;
        list.currentIndex = Math.min(Math.max(row, 0), list.count - 1);
        list.positionViewAtIndex(list.currentIndex, ListView.Contain);
        list.moved();
    }

    // Rows that a page holds, as high as the current one is.
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

    // A new list of rows leaves the place where it is, also where it has no row any more.
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

    // A list that the Tab key comes to shows where it stands.
    Keys.onReleased: event => {
        if (event.key === Qt.Key_Tab || event.key === Qt.Key_Backtab)
            list.byKey = true;
    }

    T.ScrollBar.vertical: ThinScrollBar {}

    RowOrder {
        content: list.contentItem
    }
}
