// SPDX-License-Identifier: MIT
// The head of ItemPane: the three grades, and the minimum age of the items listed.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Item {
    id: head

    required property ItemList items
    required property SafetyGuide guide

    implicitHeight: flow.implicitHeight + 2 * 12

    FlowRow {
        id: flow

        x: 26
        y: 12
        width: parent.width - 2 * 26
        spacing: 16

        Row {
            height: implicitHeight
            spacing: 14

            Repeater {
                model: head.guide

                Row {
                    id: gradeTag

                    required property string grade
                    required property color tint

                    anchors.verticalCenter: parent?.verticalCenter
                    spacing: 6

                    Rectangle {
                        anchors.verticalCenter: parent.verticalCenter
                        width: 8
                        height: 8
                        radius: 4
                        color: gradeTag.tint
                    }

                    Label {
                        text: gradeTag.grade
                        size: 12
                    }
                }
            }

            IconButton {
                id: info

                objectName: "safetyInfo"
                anchors.verticalCenter: parent.verticalCenter
                symbol: "info.circle"
                text: head.guide.title
                onClicked: popover.visible ? popover.close() : popover.open()

                SafetyInfo {
                    id: popover

                    guide: head.guide
                    y: info.height + 6
                }

                PopupHome {
                    home: info
                    popup: popover
                }
            }
        }

        Row {
            spacing: 10

            Label {
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("only inactive >")
                size: 12
                soft: true
            }

            SliderField {
                id: slider

                objectName: "ageSlider"
                anchors.verticalCenter: parent.verticalCenter
                from: 0
                to: head.items.mostAgeDays
                stepSize: 1
                value: head.items.ageDays
                label: qsTr("only inactive >")
                valueText: head.items.ageText
                onPicked: value => head.items.ageDays = Math.round(value)
            }

            Label {
                anchors.verticalCenter: parent.verticalCenter
                width: Math.max(implicitWidth, 56 * TextScale.factor)
                text: head.items.ageText
                size: 12
                font.weight: Font.Medium
            }

            Label {
                anchors.verticalCenter: parent.verticalCenter
                text: head.items.shownText
                size: 12
                soft: true
            }
        }
    }
}
