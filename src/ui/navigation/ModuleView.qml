// SPDX-License-Identifier: MIT
// A module whose view is not in this version: its hero, its progress, and after that a word on where to look.
import QtQuick
import Zelk.Components
import Zelk.Navigation
import Zelk.Symbols
import Zelk.Theme

ModuleScaffold {
    id: view

    content: Component {
        Item {
            Column {
                anchors.centerIn: parent
                width: Math.min(360, parent.width - 2 * 26)
                spacing: 8

                SymbolItem {
                    anchors.horizontalCenter: parent.horizontalCenter
                    name: view.module.symbol
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
                    text: view.module.resultTitle
                    size: 15
                    font.weight: Font.DemiBold
                    horizontalAlignment: Text.AlignHCenter
                    wrapMode: Text.WordWrap
                }

                Words {
                    width: parent.width
                    text: view.module.resultNote
                    size: 12
                    soft: true
                    horizontalAlignment: Text.AlignHCenter
                    wrapMode: Text.WordWrap
                    lineHeight: 1.25
                }
            }
        }
    }
}
