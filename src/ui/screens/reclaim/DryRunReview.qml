// SPDX-License-Identifier: MIT
// What would be removed, item by item, and how.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Charts
import Zelk.Controls

FocusScope {
    id: review

    required property DryRunModel dryRun
    readonly property alias confirm: confirmButton

    implicitHeight: heading.implicitHeight + 120 + permanent.implicitHeight + buttons.implicitHeight + 3 * 14

    Column {
        id: heading

        width: parent.width
        spacing: 2

        Label {
            width: parent.width
            text: review.dryRun.title
            size: 17
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }

        Label {
            width: parent.width
            text: review.dryRun.line
            size: 12
            soft: true
            wrapMode: Text.WordWrap
        }
    }

    Rectangle {
        anchors.top: heading.bottom
        anchors.topMargin: 14
        anchors.bottom: permanent.top
        anchors.bottomMargin: 14
        width: parent.width
        radius: 12
        color: Theme.ground
        border.width: 1
        border.color: Theme.hairline

        RowList {
            id: list

            objectName: "dryRunList"
            anchors.fill: parent
            anchors.margins: 1
            topMargin: 6
            bottomMargin: 6
            name: qsTr("What will go")
            model: review.dryRun.rows
            delegate: DryRunRow {
                ringed: list.ringed && ListView.isCurrentItem
                onPressed: list.take(index)
            }
        }
    }

    PermanentSwitch {
        id: permanent

        anchors.bottom: buttons.top
        anchors.bottomMargin: 14
        width: parent.width
        dryRun: review.dryRun
    }

    ShareBar {
        objectName: "cleaningBar"
        anchors.left: parent.left
        anchors.right: buttons.left
        anchors.rightMargin: 20
        anchors.verticalCenter: buttons.verticalCenter
        visible: review.dryRun.cleaning
        value: review.dryRun.share
        name: qsTr("Cleaning…")
        progress: review.dryRun.progress
    }

    Row {
        id: buttons

        anchors.right: parent.right
        anchors.bottom: parent.bottom
        spacing: 10

        Spinner {
            anchors.verticalCenter: parent.verticalCenter
            visible: review.dryRun.cleaning
        }

        SecondaryButton {
            objectName: "cancelCleanup"
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Cancel")
            enabled: !review.dryRun.cleaning
            onClicked: review.dryRun.cancel()
        }

        PrimaryButton {
            id: confirmButton

            objectName: "confirmCleanup"
            focus: true
            horizontalPadding: 20
            verticalPadding: 10
            text: review.dryRun.cleaning ? qsTr("Cleaning…") : review.dryRun.confirmLabel
            alarming: review.dryRun.hardDelete
            enabled: review.dryRun.confirmable
            onClicked: review.dryRun.confirm()
        }
    }
}
