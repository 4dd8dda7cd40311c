// SPDX-License-Identifier: MIT
// One of a few choices. It shows what it is told and never more: who hears the press decides whether that changes.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

T.RadioButton {
    id: choice

    // The name.
    required text
    // The choice that holds.
    required property bool chosen

    checked: choice.chosen
    // The template checks what is pressed, and does not know who is asked.
    autoExclusive: false
    onCheckedChanged: {
        if (choice.checked !== choice.chosen)
            choice.checked = Qt.binding(() => choice.chosen);
    }

    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    Keys.forwardTo: [buttonKeys]

    Accessible.name: choice.text
    Accessible.checkable: true
    Accessible.onPressAction: buttonKeys.press(false)
    Accessible.onToggleAction: buttonKeys.press(false)

    ButtonKeys {
        id: buttonKeys

        control: choice
    }

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }
}
