// SPDX-License-Identifier: MIT
// The base of a selectable row in a short list. Subtypes define the look.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

T.ItemDelegate {
    id: row

    // The accessible name.
    required text
    required property bool current

    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    Keys.forwardTo: [buttonKeys]

    Accessible.name: row.text
    Accessible.selectable: true
    Accessible.selected: row.current
    Accessible.onPressAction: buttonKeys.press(false)

    ButtonKeys {
        id: buttonKeys

        control: row
    }

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }
}
