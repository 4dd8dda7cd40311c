// SPDX-License-Identifier: MIT
// What stands above the background items: memory, maintenance, what the last command answered, and the search.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Item {
    id: head

    required property TuneScreenModel tune

    function find() {
        searchField.find();
    }

    implicitHeight: sections.implicitHeight + 20 + 8

    Column {
        id: sections

        anchors.left: parent.left
        anchors.leftMargin: Theme.pageMargin
        y: 20
        width: Math.min(head.width - 2 * Theme.pageMargin, Theme.pageWidth)
        spacing: 16

        MemoryCard {
            width: parent.width
            tune: head.tune
        }

        Card {
            id: maintenance

            width: parent.width

            Column {
                width: maintenance.availableWidth
                spacing: 4

                Item {
                    width: parent.width
                    implicitHeight: Math.max(caption.implicitHeight, waiting.implicitHeight) + 4

                    Eyebrow {
                        id: caption

                        anchors.left: parent.left
                        text: qsTr("Maintenance")
                    }

                    Spinner {
                        id: waiting

                        objectName: "leverSpinner"
                        anchors.right: parent.right
                        visible: head.tune.busy
                        Accessible.role: Accessible.ProgressBar
                        Accessible.name: qsTr("Running")
                        Accessible.description: qsTr("waiting for the system…")
                    }
                }

                ActionRow {
                    objectName: "flushDNS"
                    width: parent.width
                    symbol: "network"
                    tint: head.tune.tint
                    text: qsTr("Flush DNS cache")
                    enabled: !head.tune.busy
                    onClicked: head.tune.flushDNS()
                }

                ActionRow {
                    objectName: "refreshMemory"
                    width: parent.width
                    symbol: "arrow.clockwise"
                    tint: head.tune.tint
                    text: qsTr("Refresh memory")
                    enabled: !head.tune.busy
                    onClicked: head.tune.refreshMemory()
                }
            }
        }

        AnswerCard {
            width: parent.width
            tune: head.tune
        }

        Column {
            width: parent.width
            topPadding: 8
            spacing: 4

            Label {
                width: parent.width
                text: head.tune.heading
                size: 15
                font.weight: Font.DemiBold
                Accessible.role: Accessible.Heading
            }

            Label {
                width: parent.width
                text: qsTr("Processes and apps that run in the background. You may not need all of them.")
                size: 12
                soft: true
                wrapMode: Text.Wrap
            }
        }

        FlowRow {
            width: parent.width
            spacing: 8

            Button {
                objectName: "chooseAllAgents"
                text: qsTr("All")
                onClicked: head.tune.chooseAll()
            }

            Button {
                objectName: "chooseNoAgents"
                text: qsTr("None")
                onClicked: head.tune.chooseNone()
            }

            SearchField {
                id: searchField

                objectName: "agentSearch"
                hint: qsTr("Search")
                text: head.tune.search
                onSearched: words => head.tune.search = words
            }
        }

        Label {
            width: parent.width
            topPadding: 16
            bottomPadding: 16
            visible: head.tune.nothing
            text: qsTr("Nothing here.")
            size: 13
            soft: true
            horizontalAlignment: Text.AlignHCenter
        }
    }
}
