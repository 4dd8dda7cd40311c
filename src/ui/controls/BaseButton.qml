// SPDX-License-Identifier: MIT
// The base of all buttons: keyboard activation, accessible name and role, hand cursor. Subtypes define the look.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

T.AbstractButton {
    id: button

    // The accessible name. Subtypes with a visible label draw it themselves.
    required text
    // Sees every key before the button does and may accept it instead.
    property Item keyFilter: null

    focusPolicy: Qt.StrongFocus
    hoverEnabled: true

    Keys.forwardTo: button.keyFilter ? [button.keyFilter, buttonKeys] : [buttonKeys]

    Accessible.role: Accessible.Button
    Accessible.name: button.text
    Accessible.onPressAction: buttonKeys.press(false)

    ButtonKeys {
        id: buttonKeys

        control: button
    }
}
