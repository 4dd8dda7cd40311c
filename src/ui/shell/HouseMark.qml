// SPDX-License-Identifier: MIT
// The application's mark, the same as its icon.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Charts
import Zelk.Controls

PaintedLayer {
    kind: PaintedLayer.Tile
    color: Theme.accent

    SymbolItem {
        anchors.centerIn: parent
        name: "internaldrive"
        color: Theme.accentInk
        size: 18
    }
}
