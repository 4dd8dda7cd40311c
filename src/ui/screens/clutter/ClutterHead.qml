// SPDX-License-Identifier: MIT
// The head of the file list: caption, sort order and type filter.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.App
import Zelk.Controls

Item {
    id: head

    required property ClutterScreenModel clutter

    implicitHeight: column.implicitHeight + 2 * 20

    Column {
        id: column

        anchors.left: parent.left
        anchors.leftMargin: Theme.pageMargin
        y: 20
        width: Math.min(head.width - 2 * Theme.pageMargin, Theme.pageWidth)
        spacing: 8

        Item {
            width: parent.width
            implicitHeight: Math.max(texts.implicitHeight, order.implicitHeight)

            TwoLines {
                id: texts

                anchors.left: parent.left
                anchors.right: order.left
                anchors.rightMargin: 20
                anchors.verticalCenter: parent.verticalCenter
                title: qsTr("Clutter")
                note: qsTr("the heaviest files in your survey")
                size: 26
                weight: Font.DemiBold
                isHeading: true
            }

            SegmentedPicker {
                id: order

                objectName: "orderPicker"
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                label: qsTr("Order")
                options: [qsTr("Largest"), qsTr("Oldest")]
                current: head.clutter.order
                onPicked: index => head.clutter.sort(index)
            }
        }

        // The type filter: "All" or one type. Tab focuses the chosen pill; the arrow keys choose its neighbours.
        FocusScope {
            id: choice

            width: parent.width
            implicitHeight: flow.implicitHeight

            Accessible.role: Accessible.Grouping
            Accessible.name: qsTr("Type of files")

            function choose(row: int) {
                const next = pills.itemAt(row) as T.AbstractButton;
                if (!next)
                    return;
                next.forceActiveFocus(Qt.TabFocusReason);
                head.clutter.filter(row);
            }

            FlowRow {
                id: flow

                width: parent.width
                spacing: 8

                Repeater {
                    id: pills

                    model: head.clutter.pills

                    PillChoice {
                        id: pill

                        required property int index
                        required property fileTypeLook modelData

                        // The pill in the focus chain: the first if the chosen one is gone.
                        readonly property bool reached: pill.index === Math.max(0, head.clutter.pill)

                        objectName: "typePill" + pill.index
                        text: pill.modelData.name
                        symbol: pill.modelData.symbol
                        tint: pill.modelData.color.valid ? pill.modelData.color : Theme.otherFiles
                        chosen: pill.index === head.clutter.pill
                        focus: pill.reached
                        activeFocusOnTab: pill.reached
                        onClicked: head.clutter.filter(pill.index)

                        Keys.onLeftPressed: choice.choose(pill.index - ReadingDirection.rightward)
                        Keys.onUpPressed: choice.choose(pill.index - 1)
                        Keys.onRightPressed: choice.choose(pill.index + ReadingDirection.rightward)
                        Keys.onDownPressed: choice.choose(pill.index + 1)
                    }
                }
            }
        }
    }
}
