// SPDX-License-Identifier: MIT
// A symbol in the row of a list that acts when it is clicked. Lighter than an IconButton, since a list creates one for
// every row: it takes no focus, because the keys of the list do the same for the current row.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Item {
    id: button

    required property string symbol
    // The accessible name.
    required property string text

    // From an edge of the button to its symbol. As a negative margin it puts the symbol at the edge of what is around.
    readonly property real overhang: (button.implicitWidth - picture.size) / 2

    signal clicked

    // Both sizes are even, so that the middle is between two pixels of either.
    implicitWidth: 2 * Math.round(15 * TextScale.factor)
    implicitHeight: button.implicitWidth

    Accessible.role: Accessible.Button
    Accessible.name: button.text
    Accessible.focusable: false
    Accessible.onPressAction: button.clicked()

    Rectangle {
        anchors.fill: parent
        radius: 8
        color: tap.pressed ? Theme.pressWash : hover.hovered ? Theme.hoverWash : "transparent"
    }

    SymbolItem {
        id: picture

        anchors.centerIn: parent
        name: button.symbol
        color: hover.hovered ? Theme.ink : Theme.inkSoft
        size: 2 * Math.round(8 * TextScale.factor)
    }

    HoverHandler {
        id: hover

        cursorShape: Qt.PointingHandCursor
    }

    TapHandler {
        id: tap

        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: button.clicked()
    }
}
