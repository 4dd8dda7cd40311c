// SPDX-License-Identifier: MIT
// What every button of the house is: reached and pressed from the keyboard, named to a screen reader, and with a hand
// under the pointer. How one looks is its own affair.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

T.AbstractButton {
    id: button

    // The name; a button that shows it writes it itself.
    required text

    focusPolicy: Qt.StrongFocus
    hoverEnabled: true

    Keys.forwardTo: [buttonKeys]

    Accessible.role: Accessible.Button
    Accessible.name: button.text
    Accessible.onPressAction: buttonKeys.press(false)

    ButtonKeys {
        id: buttonKeys

        control: button
    }

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }
}
