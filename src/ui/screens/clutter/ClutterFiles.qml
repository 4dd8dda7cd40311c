// SPDX-License-Identifier: MIT
// The list of large files with its head, and the context menu that its rows share. Return and the menu key open the
// menu of the current row. The Trash key moves the file of a row that the user chose.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

FocusScope {
    id: files

    required property ClutterScreenModel clutter

    ClutterHead {
        id: head

        width: parent.width
        clutter: files.clutter
    }

    Divider {
        id: rule

        anchors.top: head.bottom
        width: parent.width
    }

    RowList {
        id: list

        objectName: "clutterList"
        anchors.top: rule.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        topMargin: 8
        bottomMargin: 16
        focus: true
        name: qsTr("Files")
        model: files.clutter.rows

        function openMenu(row: int, name: string, at: point) {
            files.clutter.pick(row);
            menu.title = name;
            menu.popup(list, at.x, at.y);
        }

        // Asks the current row's delegate, which must be in view, to open the menu.
        signal menuOfCurrentWanted

        function openMenuByKey() {
            list.positionViewAtIndex(list.currentIndex, ListView.Contain);
            list.byKey = true;
            list.menuOfCurrentWanted();
            menu.currentIndex = 0;
        }

        Keys.onReturnPressed: event => {
            if (!event.isAutoRepeat)
                list.openMenuByKey();
        }
        Keys.onEnterPressed: event => {
            if (!event.isAutoRepeat)
                list.openMenuByKey();
        }
        Keys.onMenuPressed: event => {
            if (!event.isAutoRepeat)
                list.openMenuByKey();
        }
        // Ignores auto-repeat, which would delete one file after another as they move up.
        Keys.onPressed: event => {
            if (!files.clutter.isTrashKey(event.key, event.modifiers))
                return;
            event.accepted = true;
            if (event.isAutoRepeat || !list.rowChosen)
                return;
            list.byKey = true;
            files.clutter.pick(list.currentIndex);
            files.clutter.moveToTrash();
        }

        delegate: ClutterRow {
            id: fileRow

            ringed: list.ringed && ListView.isCurrentItem
            onTaken: list.take(index)
            onAsked: at => list.openMenu(index, actions, mapToItem(list, at))

            Connections {
                target: list
                enabled: fileRow.ListView.isCurrentItem
                function onMenuOfCurrentWanted() {
                    fileRow.asked(fileRow.menuPlace);
                }
            }
        }

        Connections {
            target: files.clutter
            function onRearranged() {
                list.forceLayout();
                list.rowChosen = false;
                list.currentIndex = Math.min(0, list.count - 1);
                list.contentY = list.originY - list.topMargin;
            }
        }
    }

    // Reached by keys that the list does not handle.
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier && list.activeFocus;
        if (event.accepted)
            list.openMenuByKey();
    }

    FileMenu {
        id: menu

        clutter: files.clutter
    }

    PopupHome {
        home: list
        popup: menu
    }
}
