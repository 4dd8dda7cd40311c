// SPDX-License-Identifier: MIT
// The base of secondary windows: themed, closed by Escape or the standard shortcut.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Window {
    id: window

    color: Theme.ground
    flags: Qt.Dialog
    LayoutMirroring.enabled: ReadingDirection.mirrored
    LayoutMirroring.childrenInherit: true

    Shortcut {
        sequences: ["Escape", "Ctrl+W"]
        onActivated: window.close()
    }
}
