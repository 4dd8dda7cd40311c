// SPDX-License-Identifier: MIT
// The results of a finished survey. Hidden at once when another survey starts, so that stale results cannot be pressed,
// and disabled too, since a hidden item keeps the focus.
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
