// SPDX-License-Identifier: MIT
// For a control that is disabled while what it has begun goes on. The focus that it loses thereby comes back by itself;
// this brings back its ring.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

Item {
    id: keeper

    required property T.AbstractButton control

    // Whether it had a ring when it could be pressed last.
    property bool ringed: false

    Connections {
        target: keeper.control

        function onVisualFocusChanged() {
            if (keeper.control.enabled)
                keeper.ringed = keeper.control.visualFocus;
        }
        // Something else was gone to meanwhile.
        function onFocusChanged() {
            if (!keeper.control.focus)
                keeper.ringed = false;
        }
        function onActiveFocusChanged() {
            if (keeper.control.activeFocus && keeper.ringed)
                keeper.control.focusReason = Qt.TabFocusReason;
        }
    }
}
