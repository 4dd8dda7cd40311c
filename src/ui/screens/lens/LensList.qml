// SPDX-License-Identifier: MIT
// The subfolders of the current folder. Space selects the current row, Return and Right enter it, Backspace and Left go
// back, I explains it.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

RowList {
    id: list

    required property LensScreenModel lens

    // Takes the focus, visibly if the keyboard was used.
    function receive(byKeyboard: bool) {
        list.byKey = byKeyboard;
        list.forceActiveFocus(byKeyboard ? Qt.TabFocusReason : Qt.MouseFocusReason);
    }

    objectName: "lensList"
    name: list.lens.listName
    model: list.lens.rows
    topMargin: 4
    bottomMargin: 4

    Keys.onSpacePressed: event => {
        if (!event.isAutoRepeat)
            list.lens.toggle(list.currentIndex);
    }
    Keys.onReturnPressed: event => {
        if (!event.isAutoRepeat)
            list.lens.drill(list.currentIndex);
    }
    Keys.onEnterPressed: event => {
        if (!event.isAutoRepeat)
            list.lens.drill(list.currentIndex);
    }
    Keys.onRightPressed: list.lens.drill(list.currentIndex)
    Keys.onLeftPressed: list.lens.back()
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Backspace && !event.isAutoRepeat) {
            list.lens.back();
            event.accepted = true;
        } else if (event.key === Qt.Key_I && event.modifiers === Qt.NoModifier) {
            list.lens.explain(list.currentIndex);
            event.accepted = true;
        }
    }

    Connections {
        target: list.lens

        function onArrived(row: int) {
            list.currentIndex = Math.min(row, list.count - 1);
            list.positionViewAtIndex(list.currentIndex, ListView.Contain);
        }
    }

    delegate: LensRow {
        ringed: list.ringed && ListView.isCurrentItem
        help: qsTr("What is this? (I)")
        onPressed: list.take(index)
        onOpened: list.lens.drill(index)
        onToggled: list.lens.toggle(index)
        onAsked: list.lens.explain(index)
    }
}
