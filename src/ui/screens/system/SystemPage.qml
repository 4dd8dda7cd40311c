// SPDX-License-Identifier: MIT
// The results of the System screen, from what the volume holds to the answer of the last removal.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

ScrollArea {
    id: page

    objectName: "systemScroll"

    required property SystemScreenModel system

    readonly property SnapshotsModel snapshots: page.system.snapshots
    // The greatest width of the cards.
    readonly property int cardWidth: 760

    contentHeight: column.implicitHeight + 2 * 24
    // Initially no control is focused, but the page keys scroll.
    focus: true

    Accessible.role: Accessible.Document
    Accessible.name: qsTr("System & snapshots")

    // The answer stands below everything else.
    Timer {
        id: soon

        interval: 0
        onTriggered: {
            column.forceLayout();
            if (outputCard.visible)
                page.reveal(outputCard);
        }
    }

    Connections {
        target: page.snapshots
        function onOutputChanged() {
            soon.start();
        }
    }

    Column {
        id: column

        anchors.left: parent.left
        anchors.leftMargin: Theme.pageMargin
        y: 24
        width: Math.min(page.width - 2 * Theme.pageMargin, page.cardWidth)
        spacing: 16

        CapacityCard {
            width: parent.width
            system: page.system
        }

        DiskImagesCard {
            width: parent.width
            visible: page.system.anyDiskImages
            system: page.system
        }

        SnapshotsCard {
            width: parent.width
            snapshots: page.snapshots
        }

        SystemCard {
            width: parent.width
            title: qsTr("Protected areas")

            Label {
                width: parent.width
                text: SystemTexts.of(SystemTexts.ProtectedFolders)
                size: 12
                soft: true
                wrapMode: Text.Wrap
                lineHeight: 1.25
            }

            Label {
                objectName: "skippedFolders"
                width: parent.width
                text: page.system.skippedLine
                visible: text !== ""
                size: 12
                wrapMode: Text.Wrap
            }
        }

        Card {
            id: outputCard

            objectName: "snapshotOutputCard"
            width: parent.width
            visible: page.snapshots.output !== ""

            PrintedText {
                objectName: "snapshotOutput"
                width: outputCard.availableWidth
                text: page.snapshots.output
                size: 12
                wrapMode: Text.Wrap
                Accessible.role: Accessible.AlertMessage
            }
        }
    }

    ExplanationSheet {
        explanation: page.system.explanation
    }
}
