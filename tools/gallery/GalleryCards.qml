// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Components

Row {
    id: cards

    spacing: 14

    readonly property real share: (width - 3 * spacing) / 4

    ModuleCard {
        width: cards.share
        symbol: "sparkles"
        title: "Reclaim"
        value: "41.86 GB"
        detail: "318 items of junk"
        tint: "#32c77b"
    }
    ModuleCard {
        width: cards.share
        symbol: "tray.full"
        title: "Clutter"
        value: "228.6 GB"
        detail: "250 large files"
        tint: "#22c3c9"
    }
    ModuleCard {
        width: cards.share
        symbol: "arrow.down.circle"
        title: "Downloads with a long name that has no room"
        value: "0 bytes"
        detail: "review what landed here, all of it, one by one"
        tint: "#56c2f5"
    }
    ModuleCard {
        width: cards.share
        symbol: "internaldrive"
        title: "System"
        value: "38.4 GB"
        detail: "purgeable & snapshots"
        tint: "#7c83ff"
        enabled: false
    }
}
