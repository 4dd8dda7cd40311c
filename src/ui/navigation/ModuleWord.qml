// SPDX-License-Identifier: MIT
// Where to look for what a survey found, in a module whose view is not in this version.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Components
import Zelk.Navigation
import Zelk.Symbols
import Zelk.Theme

Item {
    id: word

    // Given by the scaffold.
    property ModuleScreenModel module: null

    Column {
        anchors.centerIn: parent
        width: Math.min(360, parent.width - 2 * 26)
        spacing: 8

        SymbolItem {
            anchors.horizontalCenter: parent.horizontalCenter
            name: word.module?.symbol ?? ""
            color: Theme.inkSoft
            size: 34
            opacity: 0.7
        }

        Item {
            width: 1
            height: 4
        }

        Words {
            width: parent.width
            text: word.module?.resultTitle ?? ""
            size: 15
            font.weight: Font.DemiBold
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
        }

        Words {
            width: parent.width
            text: word.module?.resultNote ?? ""
            size: 12
            soft: true
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            lineHeight: 1.25
        }
    }
}
