// SPDX-License-Identifier: MIT
// The health of the machine at this moment: the grade, the gauges it is made of, facts, and what may improve it. Takes
// samples only while somebody can see it.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

FocusScope {
    id: view

    required property HealthScreenModel health

    function showResult() {
        if (!result.visible)
            return;
        sections.forceLayout();
        scroll.reveal(result);
    }

    // There is no model yet when the view is put into its window, and none left when that window goes.
    function tellModel(seen: bool) {
        if (view.health)
            view.health.watched = seen;
    }

    VisibleWatch {
        id: watcher

        onSeenChanged: view.tellModel(watcher.seen)
        Component.onCompleted: view.tellModel(watcher.seen)
        Component.onDestruction: view.tellModel(false)
    }

    Connections {
        target: view.health

        // Screen readers announce what appears, and every result anew.
        function onOutputChanged() {
            result.visible = false;
            result.words = view.health.output;
            result.visible = result.words !== "";
            view.showResult();
        }
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.ground
    }

    ModuleHeader {
        id: header

        anchors.left: parent.left
        anchors.right: parent.right
        symbol: view.health.look.symbol
        tint: view.health.look.color
        title: SystemTexts.of(SystemTexts.HealthTitle)
        subtitle: view.health.osVersion
    }

    ScrollArea {
        id: scroll

        objectName: "healthScroll"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: header.bottom
        anchors.bottom: parent.bottom
        contentHeight: sections.implicitHeight

        Column {
            id: sections

            anchors.left: parent.left
            anchors.leftMargin: Theme.pageMargin
            width: Math.min(scroll.width - 2 * Theme.pageMargin, 820)
            topPadding: 18
            bottomPadding: Theme.pageMargin
            spacing: 18

            HealthScoreCard {
                width: parent.width
                focus: true
                health: view.health
            }

            HealthGaugesCard {
                width: parent.width
                health: view.health
            }

            HealthFactsCard {
                width: parent.width
                health: view.health
            }

            HealthImproveCard {
                width: parent.width
                health: view.health
            }

            // Not a card itself, whose role some versions of Qt would not let go of.
            Item {
                id: result

                property string words: ""

                objectName: "healthOutput"
                width: parent.width
                implicitHeight: paper.implicitHeight
                visible: false

                Accessible.role: Accessible.AlertMessage
                Accessible.name: result.words

                Card {
                    id: paper

                    width: parent.width

                    PrintedText {
                        width: paper.availableWidth
                        text: result.words
                        size: 10
                        wrapMode: Text.Wrap
                        mute: true
                    }
                }
            }
        }
    }
}
