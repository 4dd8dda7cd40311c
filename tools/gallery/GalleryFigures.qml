// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Components

Card {
    id: card

    required property list<real> history

    Column {
        width: parent.width
        spacing: 20

        FlowRow {
            width: parent.width
            spacing: 28

            RingGauge {
                value: 0.62
                center: "62%"
                caption: "memory"
                color: "#a77bff"
                detail: "22.3 of 36 GB"
            }
            RingGauge {
                value: 0
                center: "0%"
                caption: "processor"
                color: "#3e9bff"
                detail: "12 cores"
            }
            RingGauge {
                value: 1.7
                center: "100%"
                caption: "drive"
                color: "#ff6b5e"
                detail: "no space left at all"
            }
            StatBlock {
                label: "Recoverable"
                value: "41.86 GB"
                accent: true
            }
            StatBlock {
                label: "Uptime"
                value: "3 d 4 h"
            }
            Sparkline {
                values: card.history
            }
            Sparkline {
                values: [5, 5, 5, 5]
                color: "#32c77b"
            }
        }

        Divider {
            width: parent.width
        }

        Row {
            spacing: 24

            ModuleProgressBar {
                anchors.verticalCenter: parent.verticalCenter
                tint: "#e85bc4"
            }
            Spinner {}
            Tile {
                symbol: "trash"
                tint: "#989aa8"
            }
            Tile {
                symbol: "hand.raised"
                tint: "#3e9bff"
                side: 38
                symbolSize: 17
            }
        }
    }
}
