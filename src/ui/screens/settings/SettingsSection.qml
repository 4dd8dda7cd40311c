// SPDX-License-Identifier: MIT
// A heading and the settings below it, on a card unless `plain`.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Column {
    id: section

    required property string title
    required property bool carded
    default property alias content: body.data

    spacing: section.carded ? 8 : 4

    Eyebrow {
        leftPadding: section.carded ? 4 : 0
        text: section.title
    }

    Card {
        width: section.width
        padding: section.carded ? 16 : 0
        background.visible: section.carded

        Column {
            id: body

            width: section.width - (section.carded ? 2 * 16 : 0)
            spacing: section.carded ? 12 : 8
        }
    }
}
