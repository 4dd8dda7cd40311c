// SPDX-License-Identifier: MIT
// What the machine is, and for how long it has been running.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Card {
    id: card

    required property HealthScreenModel health

    Column {
        width: card.availableWidth

        Label {
            width: parent.width
            bottomPadding: 8
            text: SystemTexts.of(SystemTexts.ThisComputer)
            size: 14
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }

        Fact {
            width: parent.width
            label: qsTr("Chip")
            value: card.health.chip
        }
        Fact {
            width: parent.width
            label: qsTr("Cores")
            value: card.health.cores
        }
        Fact {
            width: parent.width
            label: qsTr("Memory")
            value: card.health.memorySize
        }
        Fact {
            width: parent.width
            label: SystemTexts.of(SystemTexts.SystemName)
            value: card.health.osVersion
        }
        Fact {
            width: parent.width
            label: qsTr("Uptime")
            value: card.health.uptime
        }
    }

    component Fact: Item {
        id: fact

        required property string label
        required property string value

        implicitHeight: Math.max(naming.implicitHeight, telling.implicitHeight) + 2 * 8

        Accessible.role: Accessible.Paragraph
        Accessible.name: AccessibleText.joined([fact.label, fact.value])

        Divider {
            width: parent.width
        }

        Label {
            id: naming

            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            text: fact.label
            size: 12
            soft: true
            mute: true
        }

        Label {
            id: telling

            anchors.left: naming.right
            anchors.leftMargin: 24
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: fact.value
            size: 12
            font.weight: Font.Medium
            horizontalAlignment: Text.AlignRight
            wrapMode: Text.Wrap
            mute: true
            // Or its changes would be reported twice.
            Accessible.name: ""
        }
    }
}
