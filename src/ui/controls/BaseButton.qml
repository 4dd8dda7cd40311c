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

    Accessible.role: Accessible.Button
    Accessible.name: button.text
    // Also asked of a button that is not to be pressed now.
    Accessible.onPressAction: {
        if (button.enabled)
            button.clicked();
    }

    // A held key presses once: what it repeats, on some systems with releases in between, is swallowed.
    Keys.onSpacePressed: event => event.accepted = event.isAutoRepeat
    Keys.onReleased: event => event.accepted = event.isAutoRepeat
    Keys.onReturnPressed: event => {
        if (!event.isAutoRepeat)
            button.clicked();
    }
    Keys.onEnterPressed: event => {
        if (!event.isAutoRepeat)
            button.clicked();
    }

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }
}
