// SPDX-License-Identifier: MIT
// What may improve the grade: two commands that need an administrator, and the way to what frees space. While a command
// runs, no row can be pressed.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Card {
    id: card

    required property HealthScreenModel health

    Column {
        width: card.availableWidth
        spacing: 2

        Item {
            width: parent.width
            implicitHeight: heading.implicitHeight + 8

            Label {
                id: heading

                anchors.left: parent.left
                anchors.right: spinner.left
                anchors.rightMargin: 12
                text: qsTr("Improve")
                size: 14
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
            }

            Spinner {
                id: spinner

                objectName: "improveSpinner"
                anchors.right: parent.right
                anchors.verticalCenter: heading.verticalCenter
                side: 16
                visible: card.health.busy
                Accessible.role: Accessible.Notification
                Accessible.name: qsTr("working…")
            }
        }

        ActionRow {
            objectName: "improveJunk"
            width: parent.width
            enabled: !card.health.busy
            symbol: "sparkles"
            tint: card.health.look.color
            text: card.health.junkTitle
            onClicked: card.health.pressJunk()
        }
        ActionRow {
            objectName: "improveMemory"
            width: parent.width
            enabled: !card.health.busy
            symbol: "memorychip"
            tint: card.health.look.color
            text: qsTr("Free up RAM")
            onClicked: card.health.freeMemory()
        }
        ActionRow {
            objectName: "improveDNS"
            width: parent.width
            enabled: !card.health.busy
            symbol: "network"
            tint: card.health.look.color
            text: qsTr("Flush DNS cache")
            onClicked: card.health.flushDNS()
        }
        ActionRow {
            objectName: "improveDuplicates"
            width: parent.width
            enabled: !card.health.busy
            symbol: "doc.on.doc"
            tint: card.health.look.color
            text: qsTr("Find duplicates")
            onClicked: card.health.findDuplicates()
        }
        ActionRow {
            objectName: "improveLargeFiles"
            width: parent.width
            enabled: !card.health.busy
            symbol: "tray.full"
            tint: card.health.look.color
            text: qsTr("Find large files")
            onClicked: card.health.findLargeFiles()
        }
    }
}
