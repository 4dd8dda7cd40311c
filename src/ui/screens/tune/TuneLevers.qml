// SPDX-License-Identifier: MIT
// The levers and, below them on the same page, the background items. The head lies on the margin above the first row
// and scrolls with the rows, so that any number of them costs as much as those in view.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.App
import Zelk.Controls

FocusScope {
    id: levers

    required property TuneScreenModel tune

    readonly property Item focused: Window.activeFocusItem
    // The least distance between an item with the focus and the edge.
    readonly property real gap: 16

    function scrollBy(points: real) {
        const lowest = items.originY - items.topMargin;
        const highest = Math.max(lowest, items.originY + items.contentHeight + items.bottomMargin - items.height);
        items.contentY = Math.min(Math.max(items.contentY + points, lowest), highest);
    }

    // Scrolls what the keyboard has reached into view. What was pressed is visible and must not move.
    function revealFocus() {
        const control = levers.focused as T.Control;
        const inRows = items.activeFocus;
        if (!levers.focused || (inRows ? !items.byKey : control?.focusReason === Qt.MouseFocusReason))
            return;
        for (let item = levers.focused; item; item = item.parent) {
            if (item !== viewport)
                continue;
            const top = levers.focused.mapToItem(viewport, 0, 0).y;
            const bottom = top + levers.focused.height;
            if (bottom + levers.gap > viewport.height)
                levers.scrollBy(Math.min(bottom + levers.gap - viewport.height, top - levers.gap));
            else if (top < levers.gap)
                levers.scrollBy(top - levers.gap);
            return;
        }
    }

    onFocusedChanged: levers.revealFocus()

    // Fewer rows may end above what has the focus. Waits until the rows and the head have their new heights.
    Timer {
        id: settling

        interval: 0
        onTriggered: {
            levers.scrollBy(0);
            levers.revealFocus();
        }
    }

    // Reached by keys that neither a control nor the list handles.
    Keys.onPressed: event => {
        event.accepted = true;
        if (event.key === Qt.Key_PageDown)
            levers.scrollBy(viewport.height * 0.9);
        else if (event.key === Qt.Key_PageUp)
            levers.scrollBy(-viewport.height * 0.9);
        else
            event.accepted = false;
    }

    Shortcut {
        sequence: "Ctrl+F"
        enabled: levers.visible && levers.enabled
        onActivated: head.find()
    }

    // Never moves itself: the head goes with the rows.
    Flickable {
        id: viewport

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: removeBar.top
        contentHeight: head.implicitHeight + items.contentHeight
        interactive: false
        clip: true

        TuneHead {
            id: head

            y: items.originY - items.topMargin - items.contentY
            z: 1
            width: viewport.width
            tune: levers.tune
        }

        RowList {
            id: items

            // Of the head, before it changed.
            property real margin: 0

            objectName: "agentList"
            width: viewport.width
            height: viewport.height
            topMargin: head.implicitHeight
            bottomMargin: 16
            focus: true
            name: qsTr("Background items")
            model: levers.tune.rows
            // Of a list reached by Tab, which is known only after it has the focus.
            onByKeyChanged: levers.revealFocus()

            // The head keeps its place when a line appears in it.
            onTopMarginChanged: {
                items.contentY -= items.topMargin - items.margin;
                items.margin = items.topMargin;
                levers.scrollBy(0);
                settling.restart();
            }
            onCountChanged: settling.restart()

            Keys.onSpacePressed: event => items.press(event.isAutoRepeat)
            Keys.onReturnPressed: event => items.press(event.isAutoRepeat)
            Keys.onEnterPressed: event => items.press(event.isAutoRepeat)

            function press(again: bool) {
                if (again)
                    return;
                items.byKey = true;
                levers.tune.toggle(items.currentIndex);
            }

            delegate: AgentRow {
                width: Math.min(items.width, Theme.pageWidth + 2 * Theme.pageMargin)
                ringed: items.ringed && ListView.isCurrentItem
                onPressed: {
                    items.take(index);
                    levers.tune.toggle(index);
                }
            }
        }
    }

    Rectangle {
        id: removeBar

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: undoBar.top
        height: visible ? removeButton.implicitHeight + 2 * 14 : 0
        visible: levers.tune.removing
        color: Theme.groundHi

        Divider {
            width: parent.width
        }

        Button {
            id: removeButton

            kind: Button.Removal
            objectName: "removeAgents"
            anchors.left: parent.left
            anchors.leftMargin: Theme.pageMargin
            anchors.verticalCenter: parent.verticalCenter
            symbol: "trash"
            text: levers.tune.removeLabel
            // The button is about to disappear; the focus goes to the row that took the place of those removed.
            onClicked: {
                const byKey = removeButton.visualFocus;
                levers.tune.removeChosen();
                if (levers.tune.nothing)
                    return head.find();
                items.byKey = byKey;
                items.forceActiveFocus(byKey ? Qt.TabFocusReason : Qt.MouseFocusReason);
            }
        }
    }

    UndoBar {
        id: undoBar

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        removal: levers.tune.undoBar
        onGone: items.focus = true
    }
}
