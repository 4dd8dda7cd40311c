// SPDX-License-Identifier: MIT
// A radio button that shows `chosen`. A click does not check it: the handler of `clicked` decides whether `chosen`
// changes.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

T.RadioButton {
    id: choice

    // The accessible name.
    required text
    required property bool chosen

    checked: choice.chosen
    // The template checks itself on a click, so the binding is restored below.
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
}
