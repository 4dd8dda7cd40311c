// SPDX-License-Identifier: MIT
// A heading with a card of settings below it.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Column {
    id: section

    required property string title
    default property alias content: body.data

    spacing: 8

    Eyebrow {
        leftPadding: 4
        text: section.title
    }

    Card {
        width: section.width
        padding: 16

        Column {
            id: body

            width: section.width - 2 * 16
            spacing: 12
        }
    }
}
