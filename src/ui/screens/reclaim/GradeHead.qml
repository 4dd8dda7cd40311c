// SPDX-License-Identifier: MIT
// The head of ItemPane: the three grades, the popup that explains them, and the minimum age of the items listed.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.App
import Zelk.Controls

Item {
    id: head

    required property ItemList items

    readonly property var grades: [
        {
            word: qsTr("safe"),
            tint: Theme.gradeSafe,
            meaning: qsTr("Pure caches and logs. Zero risk — the app simply rebuilds them as needed.")
        },
        {
            word: qsTr("regenerates"),
            tint: Theme.gradeRegenerates,
            meaning: qsTr("Build output like node_modules and build caches. Safe to delete; recreated automatically on your next build or install (the first one is slower).")
        },
        {
            word: qsTr("review"),
            tint: Theme.gradeReview,
            meaning: qsTr("May include things you chose to keep — device backups, virtual environments, saved state. Review before removing; left unchecked by default.")
        }
    ]
    readonly property string question: qsTr("What's safe to remove?")
    readonly property var spokenGuide: [head.question, head.grades[0].word, head.grades[0].meaning, head.grades[1].word, head.grades[1].meaning, head.grades[2].word, head.grades[2].meaning, head.closing]
    readonly property string closing: qsTr("Everything moves to the Trash, so any removal is reversible until you empty it.")

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
                model: head.grades

                Row {
                    id: gradeTag

                    required property var modelData

                    anchors.verticalCenter: parent?.verticalCenter
                    spacing: 6

                    Rectangle {
                        anchors.verticalCenter: parent.verticalCenter
                        width: 8
                        height: 8
                        radius: 4
                        color: gradeTag.modelData.tint
                    }

                    Label {
                        text: gradeTag.modelData.word
                        size: 12
                    }
                }
            }

            IconButton {
                id: info

                objectName: "safetyInfo"
                anchors.verticalCenter: parent.verticalCenter
                symbol: "info.circle"
                text: head.question
                onClicked: popover.visible ? popover.close() : popover.open()

                T.Popup {
                    id: popover

                    x: ReadingDirection.mirrored ? info.width - width : 0
                    y: info.height + 6
                    width: 360
                    height: page.implicitHeight + topPadding + bottomPadding
                    margins: 8
                    padding: 18
                    focus: true
                    // The content has the accessible name; the template's popup item would be a second node.
                    onAboutToShow: contentItem.parent.Accessible.ignored = true
                    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent

                    background: PanelGround {
                        radius: 14
                    }

                    Column {
                        id: page

                        width: popover.availableWidth
                        spacing: 12

                        focus: true
                        Accessible.role: Accessible.Note
                        Accessible.name: AccessibleText.joined(head.spokenGuide)

                        Label {
                            width: parent.width
                            text: head.question
                            size: 14
                            font.weight: Font.DemiBold
                            wrapMode: Text.WordWrap
                        }

                        Repeater {
                            model: head.grades

                            Column {
                                id: entry

                                required property var modelData

                                width: page.width
                                spacing: 4

                                Tag {
                                    anchors.left: parent.left
                                    text: entry.modelData.word
                                    ink: entry.modelData.tint
                                    tint: 0.22
                                }

                                Label {
                                    width: parent.width
                                    text: entry.modelData.meaning
                                    size: 11
                                    soft: true
                                    wrapMode: Text.WordWrap
                                }
                            }
                        }

                        Divider {
                            width: parent.width
                        }

                        Label {
                            width: parent.width
                            text: head.closing
                            size: 11
                            wrapMode: Text.WordWrap
                        }
                    }
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
                objectName: "ageSlider"
                anchors.verticalCenter: parent.verticalCenter
                from: 0
                to: 180
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
