// SPDX-License-Identifier: MIT
// A section of the gallery: a heading, and controls below each other.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Card {
    id: section

    required property string title
    default property alias shown: column.data

    Column {
        width: parent.width
        spacing: 20

        Eyebrow {
            anchors.left: parent.left
            text: section.title
        }
        Column {
            id: column

            width: parent.width
            spacing: 20
        }
    }
}
