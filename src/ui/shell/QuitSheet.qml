// SPDX-License-Identifier: MIT
// Asks how to quit while a removal is running. Escape cancels.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Sheet {
    id: sheet

    required property QuitQuestion question

    title: qsTr("Something is still being removed")
    primary: finishButton
    closable: sheet.question.asking
    sheetWidth: Math.round(460 * TextScale.factor)
    visible: sheet.question.shown
    onDismissed: sheet.question.cancel()

    FocusScope {
        implicitHeight: page.implicitHeight
        focus: true

        Column {
            id: page

            width: parent.width
            spacing: 8

            // The spinner stands here, as the answers take the whole width below in some languages.
            Item {
                width: parent.width
                implicitHeight: heading.implicitHeight

                Label {
                    id: heading

                    anchors.left: parent.left
                    anchors.right: spinner.left
                    anchors.rightMargin: 10
                    text: sheet.title
                    size: 17
                    font.weight: Font.DemiBold
                    wrapMode: Text.WordWrap
                    Accessible.role: Accessible.Heading
                }

                Spinner {
                    id: spinner

                    objectName: "quitSpinner"
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    visible: sheet.question.stopping
                }
            }

            Label {
                objectName: "quitNote"
                width: parent.width
                text: sheet.question.stopping
                    ? qsTr("Nothing more begins. Zelk quits as soon as what has begun is finished.")
                    : qsTr("Finish first, and Zelk quits by itself when everything is removed. Stop now, and what has begun is finished while the rest stays where it is.")
                size: 12
                soft: true
                wrapMode: Text.WordWrap
                lineHeight: 1.25
                bottomPadding: 16
            }

            Row {
                anchors.right: parent.right
                spacing: 10

                Button {
                    objectName: "cancelQuit"
                    anchors.verticalCenter: parent.verticalCenter
                    text: qsTr("Cancel")
                    enabled: sheet.question.asking
                    onClicked: sheet.question.cancel()
                }

                Button {
                    objectName: "stopNow"
                    anchors.verticalCenter: parent.verticalCenter
                    text: qsTr("Stop now")
                    enabled: sheet.question.asking
                    onClicked: sheet.question.stopNow()
                }

                Button {
                    id: finishButton

                    kind: Button.Primary
                    objectName: "finishFirst"
                    horizontalPadding: 20
                    verticalPadding: 10
                    focus: true
                    text: qsTr("Finish first")
                    enabled: sheet.question.asking
                    onClicked: sheet.question.finishFirst()
                }
            }
        }
    }
}
