// SPDX-License-Identifier: MIT
// Key handling for clickable controls, for `Keys.forwardTo`. Return and Enter click like Space, and a held key clicks
// once. Over the control the pointer is a hand.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

Item {
    id: keys

    required property T.AbstractButton control

    // Assistive technology may call this on a disabled control too.
    function press(again: bool) {
        if (!again && keys.control.enabled)
            keys.control.clicked();
    }

    // Swallows auto-repeat, which on some systems includes releases.
    Keys.onSpacePressed: event => event.accepted = event.isAutoRepeat
    Keys.onReleased: event => event.accepted = event.isAutoRepeat
    Keys.onReturnPressed: event => keys.press(event.isAutoRepeat)
    Keys.onEnterPressed: event => keys.press(event.isAutoRepeat)

    HoverHandler {
        parent: keys.control
        cursorShape: Qt.PointingHandCursor
    }
}
