// SPDX-License-Identifier: MIT
// The results of a finished survey. Hidden at once when another survey starts, so that stale results cannot be pressed,
// and disabled too, since a hidden item keeps the focus.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Charts
import Zelk.Controls

Column {
    id: block

    required property SurveyScreenModel survey

    readonly property FindingsModel findings: block.survey.findings

    objectName: "findings"
    spacing: 22
    visible: block.survey.finished
    enabled: block.survey.finished

    // The reclaimable bytes in large type, and the button to review them.
    Item {
        width: parent.width
        implicitHeight: Math.max(words.implicitHeight, review.visible ? review.implicitHeight : 0)

        Column {
            id: words

            anchors.left: parent.left
            anchors.right: review.visible ? review.left : parent.right
            anchors.rightMargin: review.visible ? 16 : 0
            anchors.verticalCenter: parent.verticalCenter
            spacing: 4

            Label {
                width: parent.width
                text: block.findings.reviewable ? qsTr("You can reclaim") : qsTr("Clean drive")
                size: block.findings.reviewable ? 13 : 26
                soft: block.findings.reviewable
                font.weight: block.findings.reviewable ? Font.Medium : Font.Bold
                Accessible.role: Accessible.Heading
            }

            AnimatedNumber {
                anchors.left: parent.left
                value: block.findings.recoverable
                visible: block.findings.reviewable
                pixelSize: 34
                bold: true
            }

            Label {
                width: parent.width
                text: block.findings.line
                size: 12
                soft: true
                wrapMode: Text.Wrap
            }

            Label {
                objectName: "unreadLine"
                width: parent.width
                text: block.findings.unreadLine
                visible: text !== ""
                size: 12
                soft: true
                wrapMode: Text.Wrap
            }
        }

        Button {
            id: review

            kind: Button.Primary
            objectName: "reviewButton"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            visible: block.findings.reviewable
            //: The arrow points onward: from right to left where one reads so.
            text: qsTr("Review  →")
            onClicked: block.findings.review()
        }
    }

    Eyebrow {
        anchors.left: parent.left
        bottomPadding: -8
        text: qsTr("Findings")
    }

    // The surveyed bytes by type, and below them the Trash.
    Card {
        id: storage

        width: parent.width

        Column {
            width: storage.availableWidth
            spacing: 14

            Eyebrow {
                anchors.left: parent.left
                text: qsTr("Scanned storage")
            }

            StorageRibbon {
                width: parent.width
                segments: block.findings.segments
                freeBytes: block.findings.freeBytes
            }

            Divider {
                width: parent.width
            }

            TrashBanner {
                width: parent.width
                trash: block.survey.trash
            }
        }
    }

    // The finding cards in one row, or two by two in a narrow window.
    Grid {
        id: grid

        readonly property real readable: 172 * TextScale.factor
        readonly property real cell: (grid.width - (grid.columns - 1) * grid.spacing) / grid.columns
        // All are as high as the one whose text wraps most.
        readonly property real tallest: {
            let height = 0;
            for (let index = 0; index < cards.count; ++index)
                height = Math.max(height, cards.itemAt(index)?.implicitHeight ?? 0);
            return height;
        }

        width: parent.width
        spacing: 14
        columns: grid.width >= 4 * grid.readable + 3 * grid.spacing ? 4 : 2

        Repeater {
            id: cards

            model: block.findings.cards

            ModuleCard {
                required property int index
                required property screenLook modelData

                objectName: "findingCard" + index
                width: grid.cell
                height: grid.tallest
                symbol: modelData.symbol
                title: modelData.title
                tint: modelData.color
                value: block.findings.cardBytes[index]
                detail: block.findings.cardDetails[index]
                onClicked: block.findings.openCard(index)
            }
        }
    }

    LargestCard {
        width: parent.width
        findings: block.findings
    }

    TrendsCard {
        width: parent.width
        visible: block.survey.trends.shown
        trends: block.survey.trends
    }
}
