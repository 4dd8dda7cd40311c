// SPDX-License-Identifier: MIT
// The items by category, for developers: grades, age filter, and the list with check boxes.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

FocusScope {
    id: pane

    required property ItemList items

    GradeHead {
        id: head

        width: parent.width
        items: pane.items
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
        //: Where one reads from right to left, the slider begins at the right.
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
        Keys.onRightPressed: list.turn(ReadingDirection.rightward)
        Keys.onLeftPressed: list.turn(-ReadingDirection.rightward)

        // Opens the current group by 1, which is where its chevron points, or closes it by -1.
        function turn(way: int) {
            if (way > 0)
                return pane.items.setOpen(list.currentIndex, true);
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

        delegate: ItemRow {
            width: Math.min(list.width, Theme.pageWidth + 2 * Theme.pageMargin)
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

        width: parent.width
        anchors.bottom: parent.bottom
        line: pane.items.footer
        figure: pane.items.footerBytes
        action: qsTr("Clean selected")
        ready: pane.items.cleanable
        onPressed: pane.items.clean()
    }

    // A category or an item. A click expands a category or ticks an item; both have a check box.
    component ItemRow: ListRow {
        id: row

        required property int index
        required property bool group
        required property string name
        required property string place
        required property string line
        required property string figure
        required property string age
        required property color tint
        required property string grade
        required property bool chosen
        required property bool free
        required property bool open
        required spoken

        signal taken
        signal ticked

        clickable: true
        implicitHeight: Math.max(texts.implicitHeight, box.implicitHeight) + 2 * (row.group ? 14 : 7)

        Accessible.role: Accessible.CheckBox
        Accessible.checkable: row.free
        Accessible.checked: row.chosen
        Accessible.onPressAction: row.pressed()
        Accessible.onToggleAction: row.ticked()

        Rectangle {
            id: ground

            anchors.fill: parent
            anchors.leftMargin: 26
            anchors.rightMargin: 26
            anchors.topMargin: row.group ? 4 : 1
            anchors.bottomMargin: row.group ? 4 : 1
            radius: row.group ? 14 : 8
            color: row.group ? Theme.surface : "transparent"
            border.width: row.group ? 1 : 0
            border.color: Theme.hairline

            Rectangle {
                anchors.fill: parent
                radius: parent.radius
                color: row.hovered ? Theme.hoverWash : "transparent"
            }

            FocusRing {
                shown: row.ringed
                corner: ground.radius
            }
        }

        CheckBox {
            id: box

            anchors.left: parent.left
            anchors.leftMargin: row.group ? 38 : 66
            anchors.verticalCenter: parent.verticalCenter
            text: row.name
            on: row.chosen
            enabled: row.free
            focusPolicy: Qt.NoFocus
            Accessible.ignored: true
            onClicked: {
                row.taken();
                row.ticked();
            }
        }

        SymbolItem {
            id: chevron

            anchors.left: box.right
            anchors.leftMargin: 4
            anchors.verticalCenter: parent.verticalCenter
            name: row.open ? "chevron.down" : "chevron.right"
            color: Theme.inkSoft
            size: Math.round(11 * TextScale.factor)
            visible: row.group
        }

        TwoLines {
            id: texts

            anchors.left: chevron.right
            anchors.leftMargin: row.group ? 10 : -6
            anchors.right: trailing.left
            anchors.rightMargin: 16
            anchors.verticalCenter: parent.verticalCenter
            title: row.name
            note: row.place
            size: row.group ? 14 : 13
            noteSize: row.group ? 11 : 10
            weight: row.group ? Font.DemiBold : Font.Normal
            noteWraps: row.group
            elide: Text.ElideMiddle
            mute: true

            Label {
                width: parent.width
                text: row.line
                size: 10
                color: row.free ? Theme.inkSoft : Theme.alertText
                visible: text !== ""
                mute: true
            }
        }

        Row {
            id: trailing

            anchors.right: ground.right
            anchors.rightMargin: 16
            anchors.verticalCenter: parent.verticalCenter
            spacing: 14

            Label {
                anchors.verticalCenter: parent.verticalCenter
                text: row.age
                size: 11
                soft: true
                visible: !row.group
                mute: true
            }

            Label {
                anchors.verticalCenter: parent.verticalCenter
                width: row.group ? implicitWidth : Math.max(implicitWidth, 76 * TextScale.factor)
                horizontalAlignment: Text.AlignRight
                text: row.figure
                size: 12
                font.weight: Font.Medium
                mute: true
            }

            Tag {
                anchors.verticalCenter: parent.verticalCenter
                text: row.grade
                mute: true
                ink: row.tint
                tint: 0.22
                visible: row.group
            }
        }
    }
}
