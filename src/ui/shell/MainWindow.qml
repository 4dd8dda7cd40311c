// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Survey
import Zelk.Theme

Window {
    id: window

    required property SurveyScreenModel survey

    title: "Zelk"
    minimumWidth: 960
    minimumHeight: 620
    width: 1120
    height: 720
    color: Theme.ground

    SurveyView {
        anchors.fill: parent
        survey: window.survey
        focus: true
    }
}
