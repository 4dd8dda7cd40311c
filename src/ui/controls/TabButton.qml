// SPDX-License-Identifier: MIT
// One of the places that a window shows, of which one is chosen. How it looks is its own affair.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

T.TabButton {
    id: tab

    // The name.
    required text
    required property bool chosen

    // Whether it is chosen is told by the model alone.
    checkable: false
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    Keys.forwardTo: [buttonKeys]

    Accessible.name: tab.text
    Accessible.selectable: true
    Accessible.selected: tab.chosen
    Accessible.onPressAction: buttonKeys.press(false)

    ButtonKeys {
        id: buttonKeys

        control: tab
    }

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }
}
