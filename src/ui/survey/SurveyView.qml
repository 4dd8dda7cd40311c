// SPDX-License-Identifier: MIT
// The home screen: the hero in the middle of the room that there is, scrolling where there is too little of it.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Survey
import Zelk.Theme

FocusScope {
    id: view

    required property SurveyScreenModel survey

    Rectangle {
        anchors.fill: parent
        gradient: Gradient {
            GradientStop {
                position: 0
                color: Theme.groundHi
            }
            GradientStop {
                position: 1
                color: Theme.ground
            }
        }
    }

    Flickable {
        id: scroll

        readonly property int paddingAcross: 26
        readonly property int paddingDown: 28

        anchors.fill: parent
        contentWidth: width
        contentHeight: Math.max(height, hero.implicitHeight + 2 * paddingDown)
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        SurveyHero {
            id: hero

            anchors.centerIn: parent
            width: scroll.width - 2 * scroll.paddingAcross
            survey: view.survey
            focus: true
        }
    }

    Shortcut {
        sequence: "Escape"
        enabled: view.survey.scanning
        onActivated: view.survey.cancel()
    }
}
