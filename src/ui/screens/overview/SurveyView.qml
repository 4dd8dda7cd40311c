// SPDX-License-Identifier: MIT
// The overview: the computer, the scan button centred in the remaining space and, after a survey, its results below.
// Scrolls if there is too little space.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

FocusScope {
    id: view

    required property SurveyScreenModel survey

    Component.onCompleted: view.survey.appear()

    Connections {
        target: view.survey
        function onPhaseChanged() {
            if (view.survey.scanning)
                scroll.contentY = 0;
        }
    }

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

    ScrollArea {
        id: scroll

        readonly property real columnWidth: Math.min(width - 2 * Theme.pageMargin, Theme.pageWidth)
        readonly property real columnLeft: Math.floor((width - columnWidth) / 2)
        readonly property int paddingDown: 28

        objectName: "surveyScroll"
        anchors.fill: parent
        contentHeight: page.height

        Item {
            id: page

            readonly property real heroTop: deviceHeader.y + deviceHeader.height + 12
            readonly property real heroRoom: scroll.height - scroll.paddingDown - page.heroTop
            readonly property real used: view.survey.finished ? findingsLoader.y + findingsLoader.implicitHeight : hero.y + hero.implicitHeight

            width: scroll.width
            height: Math.max(scroll.height, page.used + scroll.paddingDown)

            DeviceHeader {
                id: deviceHeader

                x: scroll.columnLeft
                y: scroll.paddingDown
                width: scroll.columnWidth
                device: view.survey.device
            }

            SurveyHero {
                id: hero

                x: scroll.columnLeft
                y: page.heroTop + (view.survey.finished ? 0 : Math.max(0, (page.heroRoom - hero.implicitHeight) / 2))
                width: scroll.columnWidth
                survey: view.survey
                findings: findingsLoader
                focus: true

                Behavior on y {
                    GentleChange {}
                }
            }

            // Created with the first results, and then kept.
            Loader {
                id: findingsLoader

                readonly property bool wanted: view.survey.finished

                function build() {
                    if (findingsLoader.wanted && findingsLoader.status === Loader.Null)
                        findingsLoader.setSource("FindingsBlock.qml", {
                            survey: view.survey
                        });
                }

                x: scroll.columnLeft
                y: page.heroTop + hero.implicitHeight + 22
                width: scroll.columnWidth
                opacity: findingsLoader.wanted ? 1 : 0
                onWantedChanged: findingsLoader.build()
                Component.onCompleted: findingsLoader.build()

                Behavior on opacity {
                    enabled: findingsLoader.wanted
                    GentleChange {}
                }
            }
        }
    }

    Shortcut {
        sequence: "Escape"
        enabled: view.visible && view.survey.scanning
        onActivated: view.survey.cancel()
    }
}
