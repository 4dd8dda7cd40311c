// SPDX-License-Identifier: MIT
// A vertically scrolling area with wheel, scroll bar and keys. Scrolls an item into view when it receives focus by the
// keyboard. Children are placed in the content item; give them `width: parent.width`.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

Flickable {
    id: area

    // The minimum distance between a focused item and the edge.
    property real margin: 16

    contentWidth: width
    contentHeight: contentItem.childrenRect.height
    boundsBehavior: Flickable.StopAtBounds
    clip: true

    readonly property real end: Math.max(0, area.contentHeight - area.height)
    readonly property Item focused: Window.activeFocusItem

    function scrollTo(y: real) {
        area.contentY = Math.min(Math.max(y, 0), area.end);
    }

    function reveal(item: Item) {
        const top = item.mapToItem(area.contentItem, 0, 0).y;
        const bottom = top + item.height;
        if (bottom + area.margin > area.contentY + area.height)
            area.scrollTo(Math.min(bottom + area.margin - area.height, top - area.margin));
        else if (top - area.margin < area.contentY)
            area.scrollTo(top - area.margin);
    }

    onFocusedChanged: {
        // A pressed control is visible already and must not move from under the pointer.
        const byHand = (area.focused as T.Control)?.focusReason === Qt.MouseFocusReason;
        for (let item = area.focused; item && !byHand; item = item.parent) {
            if (item === area.contentItem)
                return area.reveal(area.focused);
        }
    }

    Keys.onPressed: event => {
        const page = area.height * 0.9;
        event.accepted = true;
        if (event.key === Qt.Key_PageDown)
            area.scrollTo(area.contentY + page);
        else if (event.key === Qt.Key_PageUp)
            area.scrollTo(area.contentY - page);
        else if (event.key === Qt.Key_Home)
            area.scrollTo(0);
        else if (event.key === Qt.Key_End)
            area.scrollTo(area.end);
        else
            event.accepted = false;
    }

    T.ScrollBar.vertical: ThinScrollBar {}
}
