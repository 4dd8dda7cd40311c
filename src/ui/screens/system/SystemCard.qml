// SPDX-License-Identifier: MIT
// A card of the System screen: a heading, an optional control at its right, and a column of content.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Card {
    id: card

    required property string title
    property alias trailing: corner.data
    default property alias content: body.data

    Column {
        width: card.availableWidth
        spacing: 14

        Item {
            width: parent.width
            implicitHeight: Math.max(heading.implicitHeight, corner.childrenRect.height)

            Eyebrow {
                id: heading

                anchors.left: parent.left
                anchors.right: corner.left
                anchors.rightMargin: 12
                anchors.verticalCenter: parent.verticalCenter
                text: card.title
            }

            Item {
                id: corner

                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                width: childrenRect.width
                height: childrenRect.height
            }
        }

        Column {
            id: body

            width: parent.width
            spacing: 12
        }
    }
}
