// SPDX-License-Identifier: MIT
// The scan button and, below it, the texts of the current phase. Before results are shown the texts occupy the height
// of the tallest phase, so that nothing moves when the phase changes.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.App
import Zelk.Charts
import Zelk.Controls

FocusScope {
    id: hero

    required property SurveyScreenModel survey
    // The item with the results, which are hidden when another survey starts.
    required property Item findings

    implicitHeight: column.implicitHeight

    // When a focused control disappears with its phase, moves the focus to the scan button, visibly if it was visible
    // before.
    Connections {
        target: hero.survey
        function onPhaseChanged() {
            const focused = hero.Window.activeFocusItem;
            const ours = hero.visible && (!focused || [hero, hero.findings].some(part => hero.isIn(focused, part)) || hero.isIn(hero, focused));
            if (!ours) {
                // The focus is elsewhere: leave it there.
                scanButton.focus = true;
                return;
            }
            const ringed = (focused as T.AbstractButton)?.visualFocus ?? false;
            scanButton.forceActiveFocus(ringed ? Qt.TabFocusReason : Qt.OtherFocusReason);
        }
    }

    function isIn(item: Item, outer: Item): bool {
        for (let above = item; above; above = above.parent)
            if (above === outer)
                return true;
        return false;
    }

    // Reports the progress to screen readers, since the scan button keeps its role.
    Item {
        x: scanButton.x
        y: scanButton.y
        width: scanButton.width
        height: scanButton.height
        visible: hero.survey.scanning
        Accessible.role: Accessible.ProgressBar
        Accessible.name: hero.survey.buttonName
        Accessible.description: hero.survey.spokenProgress
    }

    Column {
        id: column

        width: parent.width
        spacing: 16

        ScanButton {
            id: scanButton

            anchors.horizontalCenter: parent.horizontalCenter
            objectName: "scanButton"
            focus: true
            text: hero.survey.buttonName
            Accessible.description: hero.survey.spokenProgress
            scanned: hero.survey.scanned
            recoverable: hero.survey.recoverable
            idle: hero.survey.idle
            scanning: hero.survey.scanning
            finished: hero.survey.finished
            onClicked: hero.survey.pressScan()
            keyFilter: tooSoon

            // A key that was meant for "cancel", which had the focus a moment ago, must not start a survey.
            Item {
                id: tooSoon

                Keys.onSpacePressed: event => event.accepted = !hero.survey.takesKey()
                Keys.onReturnPressed: event => event.accepted = !hero.survey.takesKey()
                Keys.onEnterPressed: event => event.accepted = !hero.survey.takesKey()
            }
        }

        Item {
            width: parent.width
            // With results, only the height of this phase.
            implicitHeight: hero.survey.finished ? done.implicitHeight : Math.max(idleBlock.implicitHeight, progress.implicitHeight)

            HeroPhase {
                id: idleBlock

                shown: hero.survey.idle
                spacing: 16

                HeroText {
                    text: qsTr("Scan every corner of your drive in seconds.")
                    size: 14
                }

                FlowRow {
                    anchors.horizontalCenter: parent.horizontalCenter
                    width: Math.min(implicitWidth, idleBlock.width)
                    spacing: 10

                    Repeater {
                        model: hero.survey.features

                        Button {
                            required property int index
                            required property screenLook modelData

                            kind: Button.Pill
                            text: modelData.title
                            symbol: modelData.symbol
                            tint: modelData.color
                            onClicked: hero.survey.pressFeature(index)
                        }
                    }
                }
            }

            HeroPhase {
                id: progress

                shown: hero.survey.scanning
                spacing: 4

                AnimatedNumber {
                    objectName: "scannedItems"
                    anchors.horizontalCenter: parent.horizontalCenter
                    value: hero.survey.items
                    format: NumberItem.Count
                    phrase: hero.survey.itemsPhrase
                    duration: Motion.follow
                    interval: Motion.readable
                }

                HeroText {
                    width: Math.min(420, progress.width)
                    text: hero.survey.pathLine
                    size: 11
                    elide: Text.ElideMiddle
                    maximumLineCount: 1
                    bottomPadding: 12
                }

                Button {
                    kind: Button.Plain
                    anchors.horizontalCenter: parent.horizontalCenter
                    objectName: "cancelButton"
                    text: qsTr("cancel")
                    onClicked: hero.survey.cancel()
                    // It disappeared with its phase while focused: the scan button gets the focus.
                    onActiveFocusChanged: if (!activeFocus && !hero.survey.scanning)
                        hero.survey.handOver()
                }
            }

            HeroPhase {
                id: done

                shown: hero.survey.finished
                spacing: 0

                HeroText {
                    text: qsTr("Tap to scan again · details below")
                    size: 11
                }
            }
        }
    }

    // The texts and controls below the scan button in one phase. Fades in, but disappears at once, because a control
    // that fades out could still be pressed.
    component HeroPhase: Column {
        id: phase

        required property bool shown

        width: parent.width
        visible: phase.shown
        opacity: phase.shown ? 1 : 0

        Behavior on opacity {
            enabled: phase.shown
            GentleChange {}
        }
    }

    component HeroText: Label {
        anchors.horizontalCenter: parent?.horizontalCenter
        soft: true
        horizontalAlignment: Text.AlignHCenter
    }
}
