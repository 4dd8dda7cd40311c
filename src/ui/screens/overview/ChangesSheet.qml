// SPDX-License-Identifier: MIT
// Shows which folders grew, appeared or vanished since the previous survey.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Sheet {
    id: sheet

    required property TrendsModel trends

    title: qsTr("What changed")
    primary: done
    sheetWidth: 560
    sheetHeight: 520
    visible: sheet.trends.showChanges
    onDismissed: sheet.trends.closeChanges()

    Item {
        implicitHeight: 260

        Column {
            id: heading

            anchors.left: parent.left
            anchors.right: done.left
            anchors.rightMargin: 16
            spacing: 2

            Label {
                width: parent.width
                text: sheet.title
                size: 17
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
            }

            Label {
                width: parent.width
                text: qsTr("since your previous survey")
                size: 11
                soft: true
            }
        }

        PrimaryButton {
            id: done

            objectName: "changesDone"
            anchors.right: parent.right
            anchors.verticalCenter: heading.verticalCenter
            horizontalPadding: 20
            verticalPadding: 9
            focus: true
            text: qsTr("Done")
            onClicked: sheet.trends.closeChanges()
        }

        Label {
            anchors.centerIn: parent
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            visible: sheet.trends.changes.empty
            text: qsTr("No notable folder changes since the last survey.")
            size: 13
            soft: true
        }

        ChangesList {
            anchors.top: heading.bottom
            anchors.topMargin: 16
            anchors.bottom: parent.bottom
            width: parent.width
            visible: !sheet.trends.changes.empty
            changes: sheet.trends.changes
        }
    }
}
