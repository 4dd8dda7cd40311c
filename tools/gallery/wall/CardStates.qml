// SPDX-License-Identifier: MIT
// The states of all cards.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Section {
    id: cards

    required property string longText

    title: "Cards"

    StateRow {
        name: "ModuleCard"
        filling: true

        ModuleCard {
            symbol: "sparkles"
            title: "Reclaim"
            value: 41.86e9
            detail: "318 items"
            tint: "#32c77b"
        }
    }
    StateRow {
        name: "ModuleCard, long text, nothing"
        filling: true
        all: ["normal", "focused"]

        ModuleCard {
            symbol: "arrow.down.circle"
            title: cards.longText
            value: 0
            detail: cards.longText
            tint: "#56c2f5"
        }
    }
    Card {
        width: parent.width

        Label {
            text: "Card"
        }
    }
}
