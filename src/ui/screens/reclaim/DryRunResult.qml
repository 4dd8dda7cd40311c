// SPDX-License-Identifier: MIT
// What was removed, and the choice to empty the Trash.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.App
import Zelk.Controls

FocusScope {
    id: resultPage

    required property DryRunModel dryRun
    // Read together with the button that receives the focus.
    readonly property string spoken: AccessibleText.joined([resultPage.dryRun.heading, resultPage.dryRun.result])
    readonly property T.AbstractButton primary: resultPage.dryRun.emptyable ? keep : done

    property bool unfolded: false

    implicitHeight: column.implicitHeight + 24 + Math.max(keep.implicitHeight, empty.implicitHeight)

    Column {
        id: column

        anchors.horizontalCenter: parent.horizontalCenter
        y: Math.max(0, (parent.height - 24 - empty.implicitHeight - implicitHeight) / 2)
        width: Math.min(440, parent.width)
        spacing: 8

        SymbolItem {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "checkmark.circle.fill"
            color: resultPage.dryRun.resultTint
            size: 56
        }

        Item {
            width: 1
            height: 4
        }

        Label {
            width: parent.width
            text: resultPage.dryRun.heading
            size: 20
            font.weight: Font.Bold
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            Accessible.role: Accessible.Heading
        }

        Label {
            objectName: "cleanupResult"
            width: parent.width
            text: resultPage.dryRun.result
            size: 14
            font.weight: Font.Medium
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
        }

        LinkButton {
            objectName: "showSkipped"
            anchors.horizontalCenter: parent.horizontalCenter
            text: resultPage.unfolded ? qsTr("Hide what was skipped") : qsTr("Show what was skipped")
            visible: resultPage.dryRun.anySkipped
            onClicked: resultPage.unfolded = !resultPage.unfolded
        }

        SkippedList {
            objectName: "skippedList"
            width: parent.width
            height: Math.min(contentHeight, 132)
            skipped: resultPage.unfolded ? resultPage.dryRun.skipped() : []
            visible: resultPage.unfolded
            enabled: visible
        }

        Label {
            width: parent.width
            text: resultPage.dryRun.advice
            size: 12
            soft: true
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            lineHeight: 1.25
        }
    }

    Row {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        spacing: 10

        Spinner {
            anchors.verticalCenter: parent.verticalCenter
            visible: resultPage.dryRun.emptying
        }

        SecondaryButton {
            id: keep

            objectName: "keepInTrash"
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Keep in Trash")
            Accessible.description: resultPage.spoken
            visible: resultPage.dryRun.emptyable
            enabled: !resultPage.dryRun.emptying
            focus: visible
            onClicked: resultPage.dryRun.finish()
        }

        PrimaryButton {
            id: empty

            objectName: "emptyTrash"
            horizontalPadding: 20
            verticalPadding: 10
            text: resultPage.dryRun.emptyLabel
            visible: resultPage.dryRun.emptyable
            enabled: !resultPage.dryRun.emptying
            onClicked: resultPage.dryRun.emptyTrash()
        }

        PrimaryButton {
            id: done

            objectName: "cleanupDone"
            horizontalPadding: 20
            verticalPadding: 10
            text: qsTr("Done")
            Accessible.description: resultPage.spoken
            visible: !resultPage.dryRun.emptyable
            focus: visible
            onClicked: resultPage.dryRun.finish()
        }
    }
}
