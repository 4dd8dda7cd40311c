// SPDX-License-Identifier: MIT
// Explains what a path on disk is, so that the user can decide whether to remove it.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Sheet {
    id: sheet

    required property ExplanationModel explanation

    readonly property color tint: {
        if (sheet.explanation.grade === ExplanationModel.Review)
            return Theme.alert;
        return sheet.explanation.grade === ExplanationModel.Regenerates ? Theme.accent : Theme.gradeSafe;
    }

    title: sheet.explanation.title
    primary: done
    sheetWidth: Math.round(440 * TextScale.factor)
    visible: sheet.explanation.shown
    onDismissed: sheet.explanation.close()

    Column {
        spacing: 10

        Item {
            width: parent.width
            implicitHeight: Math.max(symbolItem.height, headline.implicitHeight)

            SymbolItem {
                id: symbolItem

                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                name: "questionmark.circle.fill"
                color: sheet.tint
                size: Math.round(22 * TextScale.factor)
            }

            Label {
                id: headline

                objectName: "explanationTitle"
                anchors.left: symbolItem.right
                anchors.leftMargin: 10
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                text: sheet.explanation.title
                size: 17
                font.weight: Font.DemiBold
                wrapMode: Text.Wrap
                Accessible.role: Accessible.Heading
            }
        }

        Label {
            objectName: "explanationPath"
            width: parent.width
            text: sheet.explanation.path
            size: 10
            soft: true
            maximumLineCount: 1
            elide: Text.ElideMiddle
        }

        Row {
            anchors.left: parent.left
            spacing: 8

            Tag {
                objectName: "explanationBadge"
                text: sheet.explanation.badge
                ink: sheet.tint
            }

            Tag {
                objectName: "explanationRegenerates"
                text: qsTr("regenerates")
                ink: Theme.inkSoft
                visible: sheet.explanation.regenerates
            }
        }

        Label {
            objectName: "explanationDetail"
            width: parent.width
            text: sheet.explanation.detail
            size: 13
            wrapMode: Text.Wrap
            lineHeight: 1.25
        }

        Button {
            id: done

            kind: Button.Primary
            objectName: "explanationDone"
            anchors.right: parent.right
            horizontalPadding: 20
            verticalPadding: 9
            focus: true
            text: qsTr("Done")
            onClicked: sheet.explanation.close()
        }
    }
}
