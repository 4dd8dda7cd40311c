// SPDX-License-Identifier: MIT
// The grade, large and in its colour, with a line about it and a button that explains the score.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Card {
    id: card

    required property HealthScreenModel health

    readonly property color tint: card.health.grade.color

    Column {
        width: card.availableWidth
        spacing: 14

        Item {
            width: parent.width
            implicitHeight: Math.max(ring.height, words.implicitHeight)

            Rectangle {
                id: ring

                anchors.left: parent.left
                objectName: "gradeRing"
                anchors.verticalCenter: parent.verticalCenter
                width: 64
                height: 64
                radius: 32
                color: Qt.alpha(card.tint, 0.16)
                border.width: 6
                border.color: card.tint

                SymbolItem {
                    anchors.centerIn: parent
                    name: "heart.fill"
                    color: card.tint
                    size: 28
                }
            }

            Column {
                id: words

                anchors.left: ring.right
                anchors.leftMargin: 16
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter

                Label {
                    width: parent.width
                    text: SystemTexts.of(SystemTexts.HealthCaption)
                    size: 11
                    soft: true
                    wrapMode: Text.Wrap
                }

                Item {
                    width: parent.width
                    implicitHeight: Math.max(gradeLabel.implicitHeight, info.height)

                    Label {
                        id: gradeLabel

                        anchors.left: parent.left
                        anchors.verticalCenter: parent.verticalCenter
                        width: Math.min(implicitWidth, parent.width - info.width - 8)
                        text: card.health.grade.label
                        size: 30
                        color: Theme.textOn(card.tint, Theme.surface)
                        font.weight: Font.Bold
                        wrapMode: Text.Wrap
                        Accessible.role: Accessible.Heading
                    }

                    HealthScoreInfo {
                        id: info

                        anchors.left: gradeLabel.right
                        anchors.leftMargin: 8
                        anchors.verticalCenter: parent.verticalCenter
                        focus: true
                        health: card.health
                    }
                }
            }
        }

        Label {
            width: parent.width
            text: card.health.grade.summary
            size: 13
            wrapMode: Text.Wrap
        }
    }
}
