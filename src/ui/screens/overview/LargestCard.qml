// SPDX-License-Identifier: MIT
// The first few of the large files.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Card {
    id: card

    required property FindingsModel findings

    Column {
        width: card.availableWidth
        spacing: 4

        Item {
            width: parent.width
            implicitHeight: Math.max(heading.implicitHeight, all.implicitHeight)

            Label {
                id: heading

                anchors.left: parent.left
                anchors.right: all.left
                anchors.rightMargin: 12
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Largest files")
                size: 14
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
            }

            LinkButton {
                id: all

                objectName: "seeAllButton"
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("See all")
                onClicked: card.findings.seeAll()
            }
        }

        Repeater {
            model: card.findings.largest

            FileRow {
                required property int index

                width: card.availableWidth
                divided: index > 0
            }
        }
    }
}
