// SPDX-License-Identifier: MIT
// The big disk images that the survey found: name, folder, size, how to shrink each, what it is, and where.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

SystemCard {
    id: card

    required property SystemScreenModel system

    title: qsTr("Disk images & VMs")

    Label {
        width: parent.width
        text: qsTr("Big disk-image and virtual-machine files. These often hold far more space than they really use — compacting reclaims it.")
        size: 12
        soft: true
        wrapMode: Text.Wrap
        lineHeight: 1.25
    }

    Column {
        id: list

        width: parent.width

        Accessible.role: Accessible.List
        Accessible.name: card.title

        Repeater {
            model: card.system.diskImages

            ImageRow {
                width: list.width
                onExplained: card.system.explain(index)
                onRevealed: card.system.reveal(index)
            }
        }
    }

    component ImageRow: Item {
        id: row

        required property int index
        required property string name
        required property string folder
        required property string size
        required property string advice
        required property string spoken
        required property string explainName
        required property string revealName

        signal explained
        signal revealed

        implicitHeight: Math.max(tile.height, texts.implicitHeight) + 2 * 12

        Accessible.role: Accessible.ListItem
        Accessible.name: row.spoken

        Divider {
            width: parent.width
            visible: row.index > 0
        }

        Tile {
            id: tile

            anchors.left: parent.left
            y: 12
            symbol: "externaldrive.fill"
            tint: Theme.inkSoft
            side: 36
            symbolSize: 17
        }

        Column {
            id: texts

            anchors.left: tile.right
            anchors.leftMargin: 12
            anchors.right: figure.left
            anchors.rightMargin: 16
            anchors.verticalCenter: parent.verticalCenter
            spacing: 2

            Label {
                width: parent.width
                text: row.name
                size: 13
                font.weight: Font.Medium
                elide: Text.ElideMiddle
                mute: true
            }

            Label {
                width: parent.width
                text: row.folder
                size: 10
                soft: true
                elide: Text.ElideMiddle
                mute: true
            }

            Label {
                width: parent.width
                topPadding: 2
                text: row.advice
                size: 11
                soft: true
                wrapMode: Text.Wrap
                mute: true
            }
        }

        Label {
            id: figure

            anchors.right: explainButton.left
            anchors.rightMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            text: row.size
            size: 13
            font.weight: Font.DemiBold
            mute: true
        }

        IconButton {
            id: explainButton

            objectName: "explainImage" + row.index
            anchors.right: revealButton.left
            anchors.verticalCenter: parent.verticalCenter
            symbol: "questionmark.circle"
            text: row.explainName
            onClicked: row.explained()
        }

        IconButton {
            id: revealButton

            objectName: "revealImage" + row.index
            anchors.right: parent.right
            // Its glass ends at the margin.
            anchors.rightMargin: -revealButton.overhang
            anchors.verticalCenter: parent.verticalCenter
            symbol: "magnifyingglass"
            text: row.revealName
            help: SystemTexts.of(SystemTexts.RevealFile)
            onClicked: row.revealed()
        }
    }
}
