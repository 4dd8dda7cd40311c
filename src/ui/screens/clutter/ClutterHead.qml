// SPDX-License-Identifier: MIT
// The head of the file list: caption, sort order and type filter.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Item {
    id: head

    required property ClutterScreenModel clutter

    implicitHeight: column.implicitHeight + 2 * 20

    Column {
        id: column

        x: 26
        y: 20
        width: head.width - 2 * 26
        spacing: 8

        Item {
            width: parent.width
            implicitHeight: Math.max(texts.implicitHeight, order.implicitHeight)

            Column {
                id: texts

                anchors.left: parent.left
                anchors.right: order.left
                anchors.rightMargin: 20
                anchors.verticalCenter: parent.verticalCenter
                spacing: 2

                Label {
                    width: parent.width
                    text: qsTr("Clutter")
                    size: 26
                    font.weight: Font.DemiBold
                    Accessible.role: Accessible.Heading
                }

                Label {
                    width: parent.width
                    text: qsTr("the heaviest files in your survey")
                    size: 11
                    soft: true
                }
            }

            SegmentedPicker {
                id: order

                objectName: "orderPicker"
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                label: qsTr("Order")
                options: head.clutter.orders
                current: head.clutter.order
                onPicked: index => head.clutter.sort(index)
            }
        }

        TypePillRow {
            width: parent.width
            clutter: head.clutter
        }
    }
}
