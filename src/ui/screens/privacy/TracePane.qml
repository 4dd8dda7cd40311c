// SPDX-License-Identifier: MIT
// What browsers left behind: the list with its footer, or that there is nothing, with the button that looks again.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.App
import Zelk.Controls

FocusScope {
    id: pane

    required property PrivacyScreenModel privacy

    readonly property bool nothing: pane.privacy.nothing

    // To what there is, after what had the focus has gone.
    function moveFocus(byKey: bool) {
        list.byKey = byKey;
        if (pane.nothing)
            pane.giveFocus(scanAgain, byKey);
        else
            pane.giveFocus(list, byKey);
    }

    function giveFocus(next: Item, byKey: bool) {
        if (pane.activeFocus)
            next.forceActiveFocus(byKey ? Qt.TabFocusReason : Qt.MouseFocusReason);
        else
            next.focus = true;
    }

    // The button is about to be disabled.
    function clear() {
        const button = pane.Window.activeFocusItem as T.AbstractButton;
        const byKey = button?.visualFocus ?? false;
        list.byKey = byKey;
        pane.privacy.clearChosen();
        pane.moveFocus(byKey);
    }

    onNothingChanged: pane.moveFocus(list.byKey || scanAgain.visualFocus)

    Item {
        anchors.top: parent.top
        anchors.bottom: reason.top
        width: parent.width
        visible: pane.nothing

        Column {
            anchors.centerIn: parent
            width: parent.width
            spacing: 20

            EmptyState {
                width: parent.width
                symbol: "hand.raised"
                title: qsTr("No traces")
                note: qsTr("No browser caches or histories to clear.")
            }

            Button {
                id: scanAgain

                objectName: "scanTracesAgain"
                anchors.horizontalCenter: parent.horizontalCenter
                symbol: "arrow.clockwise"
                text: pane.privacy.scanLabel
                focus: pane.nothing
                onClicked: pane.privacy.scan()
            }
        }
    }

    RowList {
        id: list

        objectName: "traceList"
        anchors.top: parent.top
        anchors.bottom: reason.top
        width: parent.width
        topMargin: 12
        bottomMargin: 12
        visible: !pane.nothing
        focus: !pane.nothing
        name: qsTr("Traces")
        model: pane.privacy.rows

        Keys.onSpacePressed: event => list.press(event.isAutoRepeat)
        Keys.onReturnPressed: event => list.press(event.isAutoRepeat)
        Keys.onEnterPressed: event => list.press(event.isAutoRepeat)

        function press(again: bool) {
            if (again)
                return;
            list.byKey = true;
            pane.privacy.toggle(list.currentIndex);
        }

        delegate: TraceRow {
            width: Math.min(list.width, Theme.pageWidth + 2 * Theme.pageMargin)
            ringed: list.ringed && ListView.isCurrentItem
            onPressed: {
                list.take(index);
                pane.privacy.toggle(index);
            }
        }
    }

    // Why something is missing where one would look for it.
    Item {
        id: reason

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: undoBar.top
        visible: pane.privacy.historyStays
        height: visible ? Math.max(words.implicitHeight, sign.height) + 2 * 12 : 0

        Divider {
            width: parent.width
        }

        SymbolItem {
            id: sign

            anchors.left: parent.left
            anchors.leftMargin: Theme.pageMargin
            anchors.verticalCenter: parent.verticalCenter
            name: "info.circle"
            color: Theme.inkSoft
            size: Math.round(15 * TextScale.factor)
        }

        Label {
            id: words

            anchors.left: sign.right
            anchors.leftMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, parent.width - sign.width - 10 - 2 * Theme.pageMargin, Theme.pageWidth)
            text: qsTr("Firefox’s history is not listed: it shares a file with your bookmarks. Clear it in Firefox.")
            size: 11
            soft: true
            wrapMode: Text.Wrap
        }
    }

    UndoBar {
        id: undoBar

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: clearFooter.top
        removal: pane.privacy.undoBar
        onGone: byKey => pane.moveFocus(byKey)
    }

    CleanFooter {
        id: clearFooter

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: visible ? implicitHeight : 0
        visible: !pane.nothing
        line: pane.privacy.selectedLine
        action: qsTr("Clear traces")
        ready: pane.privacy.clearable
        onPressed: pane.clear()
    }
}
