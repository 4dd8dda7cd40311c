// SPDX-License-Identifier: MIT
// The list of duplicate sets. Return and Space press the button of the current row: a head's moves all but the first
// file to the Trash, a path's shows the file.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

RowList {
    id: list

    required property DuplicatesScreenModel duplicates

    // Either tag has this width, so that the paths begin at one place.
    readonly property real tagWidth: Math.max(Math.round(44 * TextScale.factor), keptTag.implicitWidth, otherTag.implicitWidth)

    // The list had the keyboard, and its last set has left.
    signal emptied(bool byKey)

    objectName: "duplicateList"
    name: qsTr("Duplicate sets")
    model: list.duplicates.rows
    topMargin: 8
    bottomMargin: 20

    Keys.onSpacePressed: event => list.press(event.isAutoRepeat)
    Keys.onReturnPressed: event => list.press(event.isAutoRepeat)
    Keys.onEnterPressed: event => list.press(event.isAutoRepeat)

    // Ignores auto-repeat, which would go through one set after another as they move up.
    function press(again: bool) {
        if (again || !list.rowChosen)
            return;
        list.byKey = true;
        list.duplicates.press(list.currentIndex);
    }

    // What an undo brings back may have pushed the current row out of sight, where the keyboard would be lost.
    function showCurrent() {
        const row = list.currentItem;
        if (list.currentIndex < 0)
            return;
        if (!row || row.y + row.height <= list.contentY || row.y >= list.contentY + list.height)
            list.positionViewAtIndex(list.currentIndex, ListView.Contain);
    }

    onCountChanged: revealing.restart()
    onActiveFocusChanged: revealing.restart()

    // Once the rows have their places.
    Timer {
        id: revealing

        interval: 0
        onTriggered: {
            if (list.activeFocus)
                list.showCurrent();
        }
    }

    PathTag {
        id: keptTag

        visible: false
        text: list.duplicates.rows.tags[0]
    }

    PathTag {
        id: otherTag

        visible: false
        text: list.duplicates.rows.tags[1]
    }

    Connections {
        target: list.duplicates

        function onEmptied() {
            if (list.activeFocus)
                list.emptied(list.byKey);
        }
    }

    delegate: DuplicateRow {
        width: Math.min(list.width, Theme.pageWidth + 2 * Theme.pageMargin)
        tile: list.duplicates.tint
        tagWidth: list.tagWidth
        ringed: list.ringed && ListView.isCurrentItem
        onPressed: list.take(index)
        onActed: {
            list.take(index);
            list.duplicates.press(index);
        }
    }
}
