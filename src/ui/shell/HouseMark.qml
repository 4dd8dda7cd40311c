// SPDX-License-Identifier: MIT
// The mark of the house, as the desktop shows it too.
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
