// SPDX-License-Identifier: MIT
// The list of help topics. The arrow keys, Home and End change the current one.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.App

FocusScope {
    id: list

    required property HelpModel help

    // -1 is up, 1 is down.
    signal pageTurned(way: int)

    // Focuses the row chosen by the keyboard, visibly, which scrolls it into view.
    function followKeyboard() {
        const row = topics.itemAt(list.help.current) as T.AbstractButton;
        row.forceActiveFocus(Qt.TabFocusReason);
        row.focusReason = Qt.TabFocusReason;
    }

    implicitHeight: column.implicitHeight

    Accessible.role: Accessible.List
    Accessible.name: qsTr("Topics")

    Keys.onPressed: event => {
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_PageUp:
            return list.pageTurned(-1);
        case Qt.Key_PageDown:
            return list.pageTurned(1);
        case Qt.Key_Up:
            list.help.selectPrevious();
            break;
        case Qt.Key_Down:
            list.help.selectNext();
            break;
        case Qt.Key_Home:
            list.help.selectFirst();
            break;
        case Qt.Key_End:
            list.help.selectLast();
            break;
        default:
            event.accepted = false;
            return;
        }
        list.followKeyboard();
    }

    Column {
        id: column

        anchors.left: parent.left
        anchors.right: parent.right
        padding: 12
        spacing: 2

        Repeater {
            id: topics

            model: list.help.topics

            TopicRow {
                width: column.width - 2 * column.padding
                current: index === list.help.current
                focus: current
                onClicked: list.help.select(index)
            }
        }
    }
}
