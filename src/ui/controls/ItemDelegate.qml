// SPDX-License-Identifier: MIT
// A row of a short list that is pressed to be read or chosen. How it looks is its own affair.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

T.ItemDelegate {
    id: row

    // The name.
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
