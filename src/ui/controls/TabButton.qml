// SPDX-License-Identifier: MIT
// The base of a tab, one of which is chosen. Subtypes define the look.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

T.TabButton {
    id: tab

    // The accessible name.
    required text
    required property bool chosen

    // A click must not check it: only the model changes `chosen`.
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
