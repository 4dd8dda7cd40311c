// SPDX-License-Identifier: MIT
// The items by category, for developers: grades, age filter, and the list with check boxes.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

FocusScope {
    id: pane

    required property ItemList items
    required property SafetyGuide guide

    GradeHead {
        id: head

        width: parent.width
        items: pane.items
        guide: pane.guide
    }

    Divider {
        id: rule

        anchors.top: head.bottom
        width: parent.width
    }

    EmptyState {
        anchors.top: rule.bottom
        anchors.bottom: cleanFooter.top
        width: parent.width
        visible: pane.items.allYoung
        symbol: "clock.arrow.circlepath"
        title: qsTr("Nothing that old")
        note: qsTr("Everything found was in use more recently. Move the slider to the left to see it.")
    }

    RowList {
        id: list

        objectName: "itemList"
        anchors.top: rule.bottom
        anchors.bottom: cleanFooter.top
        width: parent.width
        topMargin: 8
        bottomMargin: 8
        focus: true
        name: qsTr("Items")
        model: pane.items

        Keys.onSpacePressed: event => list.tick(event.isAutoRepeat)
        Keys.onReturnPressed: event => list.press(event.isAutoRepeat)
        Keys.onEnterPressed: event => list.press(event.isAutoRepeat)
        Keys.onRightPressed: list.unfold(list.currentIndex)
        Keys.onLeftPressed: {
            const group = pane.items.groupRow(list.currentIndex);
            pane.items.setOpen(group, false);
            list.go(group);
        }

        function tick(again: bool) {
            if (!again)
                pane.items.toggle(list.currentIndex);
        }

        function press(again: bool) {
            if (!again)
                pane.items.press(list.currentIndex);
        }

        function unfold(row: int) {
            pane.items.setOpen(row, true);
        }

        delegate: ItemRow {
            ringed: list.ringed && ListView.isCurrentItem
            onTicked: pane.items.toggle(index)
            onTaken: list.take(index)
            onPressed: {
                list.take(index);
                pane.items.press(index);
            }
        }
    }

    CleanFooter {
        id: cleanFooter

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        line: pane.items.footer
        figure: pane.items.footerBytes
        action: qsTr("Clean selected")
        ready: pane.items.cleanable
        onPressed: pane.items.clean()
    }
}
