// SPDX-License-Identifier: MIT
// What went, and whether the Trash goes after it.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.App
import Zelk.Controls

FocusScope {
    id: page

    required property DryRunModel dryRun
    readonly property T.AbstractButton primary: page.dryRun.emptyable ? keep : done

    readonly property var skipped: page.dryRun.skipped
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
            color: page.dryRun.resultTint
            size: 56
        }

        Item {
            width: 1
            height: 4
        }

        Words {
            width: parent.width
            text: page.dryRun.heading
            size: 20
            font.weight: Font.Bold
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            Accessible.role: Accessible.Heading
        }

        Words {
            objectName: "cleanupResult"
            width: parent.width
            text: page.dryRun.result
            size: 14
            font.weight: Font.Medium
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
        }

        LinkButton {
            objectName: "showSkipped"
            anchors.horizontalCenter: parent.horizontalCenter
            text: page.unfolded ? qsTr("Hide what was skipped") : qsTr("Show what was skipped")
            visible: page.skipped.length > 0
            onClicked: page.unfolded = !page.unfolded
        }

        SkippedList {
            objectName: "skippedList"
            width: parent.width
            height: Math.min(contentHeight, 132)
            skipped: page.skipped
            visible: page.unfolded
            enabled: visible
        }

        Words {
            width: parent.width
            text: page.dryRun.advice
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
            visible: page.dryRun.emptying
        }

        SecondaryButton {
            id: keep

            objectName: "keepInTrash"
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Keep in Trash")
            visible: page.dryRun.emptyable
            enabled: !page.dryRun.emptying
            focus: visible
            onClicked: page.dryRun.finish()
        }

        PrimaryButton {
            id: empty

            objectName: "emptyTrash"
            horizontalPadding: 20
            verticalPadding: 10
            text: page.dryRun.emptyLabel
            visible: page.dryRun.emptyable
            enabled: !page.dryRun.emptying
            onClicked: page.dryRun.emptyTrash()
        }

        PrimaryButton {
            id: done

            objectName: "cleanupDone"
            horizontalPadding: 20
            verticalPadding: 10
            text: qsTr("Done")
            visible: !page.dryRun.emptyable
            focus: visible
            onClicked: page.dryRun.finish()
        }
    }
}
