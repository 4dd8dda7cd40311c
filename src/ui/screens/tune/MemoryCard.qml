// SPDX-License-Identifier: MIT
// The memory: its pressure, three figures, and the button that frees it.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Card {
    id: memory

    required property TuneScreenModel tune

    Column {
        width: memory.availableWidth
        spacing: 12

        Item {
            width: parent.width
            implicitHeight: Math.max(caption.implicitHeight, pressure.implicitHeight)

            Eyebrow {
                id: caption

                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Memory")
            }

            Label {
                id: pressure

                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                text: memory.tune.pressure
                size: 11
                color: Theme.textOn(memory.tune.tint, Theme.textGround)
            }
        }

        Item {
            width: parent.width
            implicitHeight: Math.max(figures.implicitHeight, freeUp.implicitHeight)

            FlowRow {
                id: figures

                anchors.left: parent.left
                anchors.right: freeUp.left
                anchors.rightMargin: 16
                anchors.verticalCenter: parent.verticalCenter
                spacing: 24

                Figure {
                    label: qsTr("used")
                    value: memory.tune.used
                }
                Figure {
                    label: qsTr("free")
                    value: memory.tune.free
                }
                Figure {
                    label: qsTr("total")
                    value: memory.tune.total
                }
            }

            Button {
                id: freeUp

                objectName: "freeMemory"
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                symbol: "memorychip"
                text: qsTr("Free up RAM")
                enabled: !memory.tune.busy
                onClicked: memory.tune.freeMemory()

                RingKeeper {
                    control: freeUp
                }
            }
        }

        Label {
            width: parent.width
            visible: text !== ""
            text: SystemTexts.of(SystemTexts.FreeMemoryNote)
            size: 11
            soft: true
            wrapMode: Text.Wrap
        }
    }

    // Wide enough for any figure, so that its neighbours stay while it counts up.
    component Figure: StatBlock {
        width: Math.max(implicitWidth, Math.round(84 * TextScale.factor))
    }
}
