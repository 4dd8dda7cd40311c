// SPDX-License-Identifier: MIT
// All that a finished survey found. It goes at once when another survey begins, so that nothing stale can be pressed:
// disabled too, for an item that is hidden keeps the keyboard.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Column {
    id: block

    required property SurveyScreenModel survey

    objectName: "findings"
    spacing: 22
    visible: block.survey.finished
    enabled: block.survey.finished

    Headline {
        width: parent.width
        findings: block.survey.findings
    }

    Eyebrow {
        bottomPadding: -8
        text: qsTr("Findings")
        Accessible.role: Accessible.Heading
    }

    StorageCard {
        width: parent.width
        findings: block.survey.findings
        trash: block.survey.trash
    }

    CardGrid {
        width: parent.width
        cards: block.survey.findings.cards
    }

    LargestCard {
        width: parent.width
        findings: block.survey.findings
    }

    TrendsCard {
        width: parent.width
        visible: block.survey.trends.shown
        trends: block.survey.trends
    }
}
