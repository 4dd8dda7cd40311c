// SPDX-License-Identifier: MIT
// What every window beside the main one is: in the theme, and closed by Escape or by the system's key for it.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Window {
    id: window

    color: Theme.ground
    flags: Qt.Dialog

    Shortcut {
        sequences: ["Escape", "Ctrl+W"]
        onActivated: window.close()
    }
}
