// SPDX-License-Identifier: MIT
// A module's emblem: a glowing disc with its symbol, and rings that pulse while the module scans. Not animated while
// hidden or with reduced motion.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Charts
import Zelk.Controls

Item {
    id: orb

    required property string symbol
    required property color tint
    property bool pulsing: false

    readonly property bool moving: orb.pulsing && orb.visible && !Motion.reduced

    implicitWidth: 150
    implicitHeight: 150

    Repeater {
        model: [PaintedLayer.InnerRing, PaintedLayer.MiddleRing, PaintedLayer.OuterRing]

        PaintedLayer {
            id: ring

            required property int index
            required property int modelData

            objectName: "orbRing"
            anchors.centerIn: parent
            kind: ring.modelData
            color: orb.tint

            SequentialAnimation on scale {
                running: orb.moving
                loops: Animation.Infinite
                alwaysRunToEnd: false
                onStopped: ring.scale = 1

                PauseAnimation {
                    duration: ring.index * 150
                }
                NumberAnimation {
                    to: 1.1
                    duration: 650
                    easing.type: Easing.InOutSine
                }
                NumberAnimation {
                    to: 1
                    duration: 650
                    easing.type: Easing.InOutSine
                }
                PauseAnimation {
                    duration: (2 - ring.index) * 150
                }
            }
        }
    }

    PaintedLayer {
        anchors.centerIn: parent
        kind: PaintedLayer.OrbDisc
        color: orb.tint
    }

    SymbolItem {
        anchors.centerIn: parent
        name: orb.symbol
        color: "white"
        size: 42
        weight: Font.Medium
    }
}
