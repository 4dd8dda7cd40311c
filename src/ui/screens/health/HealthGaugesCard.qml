// SPDX-License-Identifier: MIT
// The gauges side by side, at equal distances: processor, memory, disk and battery.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Charts
import Zelk.Controls

Card {
    id: card

    required property HealthScreenModel health

    readonly property real cell: card.availableWidth / Math.max(1, card.health.gaugeCount)
    // By level.
    readonly property var loads: [card.health.normalLoad, card.health.elevatedLoad, Theme.alert]

    padding: 20

    Row {
        Gauge {
            width: card.cell
            face: card.health.cpu
            loads: card.loads
        }
        Gauge {
            width: card.cell
            face: card.health.memory
            loads: card.loads
        }
        Gauge {
            width: card.cell
            face: card.health.disk
            loads: card.loads
        }
        Gauge {
            width: card.cell
            face: card.health.battery
            loads: card.loads
        }
    }

    component Gauge: RingGauge {
        id: gauge

        required property gaugeFace face
        required property var loads

        objectName: "gauge"
        visible: gauge.face.shown
        value: gauge.face.value
        center: gauge.face.percent
        caption: gauge.face.caption
        detail: gauge.face.detail
        color: gauge.loads[gauge.face.level]
    }
}
