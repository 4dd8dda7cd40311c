// SPDX-License-Identifier: MIT
// A symbol that looks as large as text of a size: of its grid's 24 units the ink takes about 20.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

SymbolItem {
    id: symbol

    required property real points

    size: Math.round(symbol.points * 1.2)
}
