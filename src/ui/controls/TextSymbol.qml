// SPDX-License-Identifier: MIT
// A symbol sized to match text of `points`: the drawing fills about 20 of the 24 units of the symbol's grid.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

SymbolItem {
    id: symbol

    required property real points

    size: Math.round(symbol.points * 1.2 * TextScale.factor)
}
