// SPDX-License-Identifier: MIT
// Headers, charts and numbers with different data.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Charts
import Zelk.Controls
import Zelk.Gallery

Section {
    id: section

    required property GalleryModel figures

    title: "Figures"

    DeviceHeader {
        width: parent.width
        device: section.figures.device
    }
    DeviceHeader {
        width: parent.width
        device: section.figures.longDevice
    }
    DeviceHeader {
        width: parent.width
        device: section.figures.bareDevice
    }

    StorageRibbon {
        width: parent.width
        segments: section.figures.segments
        freeBytes: section.figures.freeBytes
    }
    StorageRibbon {
        width: parent.width
        segments: []
        freeBytes: 0
    }

    FlowRow {
        width: parent.width
        spacing: 28

        RingGauge {
            value: 0.62
            center: 62
            caption: "memory"
            color: "#a77bff"
            detail: "22.3 of 36 GB"
        }
        RingGauge {
            value: 0
            center: 0
            caption: "processor"
            color: "#3e9bff"
            detail: ""
        }
        RingGauge {
            value: 1.7
            center: 100
            caption: "drive"
            color: "#ff6b5e"
            detail: section.figures.longText
        }
        StatBlock {
            label: "Recoverable"
            value: 41.86e9
            accent: true
        }
        StatBlock {
            label: "Files"
            value: 318204
            format: NumberItem.Count
        }
        Sparkline {
            values: section.figures.history
        }
        Sparkline {
            values: [5, 5, 5, 5]
            color: "#32c77b"
        }
        Sparkline {
            values: []
        }
    }

    Divider {
        width: parent.width
    }

    FlowRow {
        width: parent.width
        spacing: 24

        Tag {
            text: "safe"
            ink: "#32c77b"
        }
        Tag {
            text: "review"
            ink: "#ff6b5e"
        }
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
        Divider {
            height: 34
        }
        Spinner {}
        ModuleProgressBar {
            tint: "#e85bc4"
        }
        ShareBar {
            name: "Cleaning…"
            value: 0
            progress: "0 of 40"
        }
        ShareBar {
            name: "Cleaning…"
            value: 0.3
            progress: "12 of 40"
        }
        ShareBar {
            name: "Cleaning…"
            value: 1
            progress: "40 of 40"
        }
        AnimatedNumber {
            value: 178.12e9
        }
        Label {
            width: 240
            text: section.figures.longText
        }
        Label {
            width: 240
            text: section.figures.longText
            soft: true
            wrapMode: Text.Wrap
        }
    }
}
