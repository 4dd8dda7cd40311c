// SPDX-License-Identifier: MIT
// A card of the System screen: a heading, an optional control at its right, and a column of content.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Card {
    id: card

    required property string title
    property alias trailing: corner.data
    // How far the control reaches into the margin beside it.
    property real overhang: 0
    default property alias content: body.data

    Column {
        width: card.availableWidth
        spacing: 14

        Item {
            width: parent.width
            // The control reaches into the margins: all headings stand equally far below the top of their cards.
            implicitHeight: heading.implicitHeight

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
                anchors.rightMargin: -card.overhang
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
