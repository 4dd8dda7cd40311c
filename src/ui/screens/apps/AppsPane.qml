// SPDX-License-Identifier: MIT
// The list of applications with its head, and the sheet that asks. Return, Space and Delete ask about the current row.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

FocusScope {
    id: pane

    required property AppsScreenModel apps

    Item {
        id: head

        width: parent.width
        implicitHeight: Math.max(texts.implicitHeight, order.implicitHeight) + 2 * 20

        Column {
            id: texts

            anchors.left: parent.left
            anchors.leftMargin: Theme.pageMargin
            anchors.right: order.left
            anchors.rightMargin: 20
            anchors.verticalCenter: parent.verticalCenter
            spacing: 2

            Label {
                width: parent.width
                text: qsTr("Apps")
                size: 26
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
            }

            Label {
                objectName: "appsLine"
                width: parent.width
                text: pane.apps.line
                size: 11
                soft: true
                wrapMode: Text.Wrap
            }
        }

        SegmentedPicker {
            id: order

            objectName: "appsOrder"
            anchors.right: parent.right
            anchors.rightMargin: Math.max(Theme.pageMargin, head.width - Theme.pageMargin - Theme.pageWidth)
            anchors.verticalCenter: parent.verticalCenter
            label: qsTr("Order")
            options: [qsTr("Total footprint"), qsTr("App size")]
            current: pane.apps.order
            onPicked: index => pane.apps.sort(index)
        }
    }

    Divider {
        id: rule

        anchors.top: head.bottom
        width: parent.width
    }

    RowList {
        id: list

        objectName: "appList"
        anchors.top: rule.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        topMargin: 8
        bottomMargin: 16
        focus: true
        name: qsTr("Applications")
        model: pane.apps.rows

        function ask(again: bool) {
            if (again || !list.rowChosen)
                return;
            list.byKey = true;
            pane.apps.uninstall(list.currentIndex);
        }

        Keys.onReturnPressed: event => list.ask(event.isAutoRepeat)
        Keys.onEnterPressed: event => list.ask(event.isAutoRepeat)
        Keys.onSpacePressed: event => list.ask(event.isAutoRepeat)
        Keys.onDeletePressed: event => list.ask(event.isAutoRepeat)

        delegate: AppRow {
            width: Math.min(list.width, Theme.pageWidth + 2 * Theme.pageMargin)
            ringed: list.ringed && ListView.isCurrentItem
            resting: pane.apps.removing
            onPressed: list.take(index)
            onAsked: {
                list.take(index);
                pane.apps.uninstall(index);
            }
        }

        Connections {
            target: pane.apps
            function onRearranged() {
                list.forceLayout();
                list.rowChosen = false;
                list.currentIndex = Math.min(0, list.count - 1);
                list.contentY = list.originY - list.topMargin;
            }
        }
    }

    UninstallSheet {
        removal: pane.apps.sheet
    }
}
