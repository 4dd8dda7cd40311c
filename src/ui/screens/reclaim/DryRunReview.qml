// SPDX-License-Identifier: MIT
// What would be removed, item by item, and how: moved to the Trash, or deleted for good.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Charts
import Zelk.Controls

FocusScope {
    id: review

    required property DryRunModel dryRun
    readonly property alias confirm: confirmButton
    readonly property string title: qsTr("Review cleanup")

    implicitHeight: heading.implicitHeight + 120 + permanent.implicitHeight + buttons.implicitHeight + 3 * 14

    TwoLines {
        id: heading

        width: parent.width
        title: review.title
        note: review.dryRun.line
        size: 17
        noteSize: 12
        weight: Font.DemiBold
        noteWraps: true
        isHeading: true
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

    // Permanent deletion instead of the Trash; has a warning colour while on.
    Item {
        id: permanent

        anchors.bottom: buttons.top
        anchors.bottomMargin: 14
        width: parent.width
        implicitHeight: Math.max(permanentLabel.implicitHeight, toggle.implicitHeight)

        ToggleSwitch {
            id: toggle

            anchors.left: parent.left
            objectName: "permanentSwitch"
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Delete permanently instead of moving to Trash — irreversible")
            labelled: false
            checked: review.dryRun.hardDelete
            enabled: review.dryRun.review
            onToggled: review.dryRun.hardDelete = checked
        }

        Label {
            id: permanentLabel

            anchors.left: toggle.right
            anchors.leftMargin: 12
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Delete permanently instead of moving to Trash — irreversible")
            size: 12
            color: review.dryRun.hardDelete ? Theme.alertText : Theme.ink
            opacity: toggle.enabled ? 1 : 0.45
            wrapMode: Text.WordWrap
            mute: true

            TapHandler {
                enabled: toggle.enabled
                onTapped: toggle.flip(false)
            }
        }
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

        Button {
            objectName: "cancelCleanup"
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Cancel")
            enabled: !review.dryRun.cleaning
            onClicked: review.dryRun.cancel()
        }

        Button {
            id: confirmButton

            kind: Button.Primary
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

    // An item that a clean-up would remove.
    component DryRunRow: ListRow {
        id: row

        required property int index
        required property string symbol
        required property string name
        required property string folder
        required property string figure
        required property string method
        required spoken

        implicitHeight: Math.max(texts.implicitHeight, trailing.implicitHeight) + 2 * 6

        FocusRing {
            shown: row.ringed
            corner: 8
        }

        SymbolItem {
            id: sign

            anchors.left: parent.left
            anchors.leftMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            name: row.symbol
            color: Theme.inkSoft
            size: Math.round(13 * TextScale.factor)
        }

        TwoLines {
            id: texts

            anchors.left: sign.right
            anchors.leftMargin: 12
            anchors.right: trailing.left
            anchors.rightMargin: 16
            anchors.verticalCenter: parent.verticalCenter
            spacing: 1
            title: row.name
            note: row.folder
            noteSize: 10
            elide: Text.ElideMiddle
            mute: true
        }

        Column {
            id: trailing

            anchors.right: parent.right
            anchors.rightMargin: 16
            anchors.verticalCenter: parent.verticalCenter
            spacing: 1

            Label {
                anchors.right: parent.right
                text: row.figure
                size: 12
                font.weight: Font.Medium
                mute: true
            }

            Label {
                anchors.right: parent.right
                width: Math.min(implicitWidth, row.width * 0.45)
                text: row.method
                size: 10
                soft: true
                elide: Text.ElideMiddle
                mute: true
            }
        }
    }
}
