// SPDX-License-Identifier: MIT
// The keys of whatever is pressed: put it into `Keys.forwardTo`. Return and Enter press as Space does, and a held key
// presses once.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

Item {
    id: keys

    required property T.AbstractButton control

    // Also asked of a button that is not to be pressed now.
    function press(again: bool) {
        if (!again && keys.control.enabled)
            keys.control.clicked();
    }

    // What a held key repeats, on some systems with releases in between, is swallowed.
    Keys.onSpacePressed: event => event.accepted = event.isAutoRepeat
    Keys.onReleased: event => event.accepted = event.isAutoRepeat
    Keys.onReturnPressed: event => keys.press(event.isAutoRepeat)
    Keys.onEnterPressed: event => keys.press(event.isAutoRepeat)
}
