// SPDX-License-Identifier: MIT
// The finding cards in one row, or two by two in a narrow window.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Grid {
    id: grid

    required property FindingCards cards

    readonly property real readable: 172 * TextScale.factor
    readonly property real cell: (grid.width - (grid.columns - 1) * grid.spacing) / grid.columns

    spacing: 14
    columns: grid.width >= 4 * grid.readable + 3 * grid.spacing ? 4 : 2

    Repeater {
        model: grid.cards

        ModuleCard {
            required property int index

            objectName: "findingCard" + index
            width: grid.cell
            onClicked: grid.cards.press(index)
        }
    }
}
