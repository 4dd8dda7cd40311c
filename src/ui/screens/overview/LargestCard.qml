// SPDX-License-Identifier: MIT
// The first few of the large files, each with its size.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.App
import Zelk.Controls

Card {
    id: card

    required property FindingsModel findings

    Column {
        width: card.availableWidth
        spacing: 4

        Item {
            width: parent.width
            implicitHeight: Math.max(heading.implicitHeight, all.implicitHeight)

            Label {
                id: heading

                anchors.left: parent.left
                anchors.right: all.left
                anchors.rightMargin: 12
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Largest files")
                size: 14
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
            }

            Button {
                id: all

                kind: Button.Link
                objectName: "seeAllButton"
                anchors.right: parent.right
                // Its text ends where the figures below it do.
                anchors.rightMargin: -all.horizontalPadding
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("See all")
                onClicked: card.findings.seeAll()
            }
        }

        Repeater {
            model: card.findings.largest

            T.Control {
                id: row

                required property int index
                required property string symbol
                required property color tint
                required property string name
                required property string path
                required property real bytes

                width: card.availableWidth
                implicitHeight: Math.max(40, label.implicitHeight + 20)
                hoverEnabled: true

                Accessible.role: Accessible.ListItem
                Accessible.name: AccessibleText.joined([row.name, AccessibleText.bytes(row.bytes)])

                Divider {
                    width: parent.width
                    visible: row.index > 0
                }

                TextSymbol {
                    id: sign

                    anchors.left: parent.left
                    anchors.verticalCenter: parent.verticalCenter
                    name: row.symbol
                    color: row.tint.valid ? row.tint : Theme.otherFiles
                    points: 13
                }

                Label {
                    id: label

                    anchors.left: sign.right
                    anchors.leftMargin: 12
                    anchors.right: figure.left
                    anchors.rightMargin: 16
                    anchors.verticalCenter: parent.verticalCenter
                    text: row.name
                    elide: Text.ElideMiddle
                    mute: true
                }

                AnimatedNumber {
                    id: figure

                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    value: row.bytes
                    pixelSize: 12
                    mute: true
                }

                HelpTip {
                    control: row
                    text: row.path
                }
            }
        }
    }
}
