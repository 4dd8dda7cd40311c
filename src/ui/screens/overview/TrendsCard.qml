// SPDX-License-Identifier: MIT
// The change since the last survey, with a sparkline and a forecast.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Charts
import Zelk.Controls

Card {
    id: card

    required property TrendsModel trends

    readonly property bool narrow: card.availableWidth < line.implicitWidth + curve.width + 24

    padding: 18

    Column {
        width: card.availableWidth
        spacing: 12

        Eyebrow {
            anchors.left: parent.left
            text: qsTr("Trends")
        }

        Item {
            width: parent.width
            implicitHeight: card.narrow ? line.implicitHeight + 12 + curve.height : Math.max(line.implicitHeight, curve.height)

            Row {
                id: line

                anchors.left: parent.left
                y: card.narrow ? 0 : (parent.height - height) / 2
                spacing: 10

                SymbolItem {
                    anchors.verticalCenter: parent.verticalCenter
                    name: card.trends.grew ? "arrow.up.right" : "arrow.down.right"
                    color: card.trends.grew ? Theme.alert : "#32c77b"
                    size: Math.round(13 * TextScale.factor)
                    weight: Font.Bold
                    Accessible.role: Accessible.Graphic
                    Accessible.name: card.trends.arrowName
                }

                AnimatedNumber {
                    anchors.verticalCenter: parent.verticalCenter
                    value: card.trends.delta
                    pixelSize: 20
                    bold: true
                }

                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    text: card.trends.deltaLine
                    size: 11
                    soft: true
                }
            }

            Sparkline {
                id: curve

                anchors.right: parent.right
                anchors.rightMargin: card.narrow ? parent.width - width : 0
                y: card.narrow ? line.implicitHeight + 12 : (parent.height - height) / 2
                width: 200
                height: 46
                values: card.trends.totals
            }
        }

        Label {
            width: parent.width
            visible: text !== ""
            text: card.trends.forecast
            size: 11
            color: Theme.textOn(card.trends.alarming ? Theme.alert : Theme.inkSoft, Theme.textGround)
        }

        Button {
            objectName: "changesButton"
            anchors.left: parent.left
            visible: card.trends.hasChanges
            symbol: "clock.arrow.circlepath"
            text: qsTr("What changed since last scan")
            onClicked: card.trends.openChanges()
        }
    }

    ChangesSheet {
        trends: card.trends
    }
}
