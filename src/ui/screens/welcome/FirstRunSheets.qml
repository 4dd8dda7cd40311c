// SPDX-License-Identifier: MIT
// The welcome sheet and the access sheet over the main window. Escape takes the exit that each offers, so that closing
// counts as an answer.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Item {
    id: sheets

    required property FirstRunModel firstRun

    Sheet {
        id: first

        // Shows the second sheet only after the first one has closed and returned the focus.
        property bool gone: true

        onAboutToShow: first.gone = false
        onClosed: first.gone = true

        title: sheets.firstRun.welcome.title
        visible: sheets.firstRun.showWelcome
        sheetWidth: Math.round(480 * TextScale.factor)
        primary: welcomePanel.primary
        onDismissed: sheets.firstRun.welcome.skip()

        WelcomeView {
            id: welcomePanel

            welcome: sheets.firstRun.welcome
            focus: true
        }
    }

    // Asks for access to the whole drive and waits for it.
    Sheet {
        id: accessSheet

        title: SystemTexts.of(SystemTexts.AccessTitle)
        visible: sheets.firstRun.showOnboarding && first.gone
        sheetWidth: 460
        sheetHeight: Math.max(420, panel.implicitHeight + topPadding + bottomPadding)
        primary: panel.grantable ? settingsButton : continueButton
        onDismissed: sheets.firstRun.continueWithoutAccess()

        FocusScope {
            id: panel

            // Whether the system has settings for it.
            readonly property bool grantable: settingsButton.text !== ""

            implicitHeight: column.implicitHeight
            focus: true

            Column {
                id: column

                anchors.verticalCenter: parent.verticalCenter
                width: panel.width
                spacing: 20

                Tile {
                    anchors.horizontalCenter: parent.horizontalCenter
                    symbol: "lock.open.display"
                    tint: Theme.accent
                    side: 88
                    symbolSize: 44
                    corner: 22
                }

                Column {
                    width: parent.width
                    spacing: 8

                    Label {
                        width: parent.width
                        text: SystemTexts.of(SystemTexts.AccessTitle)
                        size: 20
                        font.weight: Font.DemiBold
                        horizontalAlignment: Text.AlignHCenter
                        wrapMode: Text.Wrap
                        Accessible.role: Accessible.Heading
                    }

                    Repeater {
                        model: [SystemTexts.of(SystemTexts.AccessPurpose), SystemTexts.of(SystemTexts.AccessSteps)]

                        Label {
                            required property string modelData

                            width: column.width
                            text: modelData
                            size: 13
                            soft: true
                            horizontalAlignment: Text.AlignHCenter
                            wrapMode: Text.Wrap
                        }
                    }
                }

                Button {
                    id: settingsButton

                    kind: Button.Primary
                    objectName: "openSettingsButton"
                    anchors.horizontalCenter: parent.horizontalCenter
                    text: SystemTexts.of(SystemTexts.AccessSettings)
                    visible: panel.grantable
                    focus: panel.grantable
                    onClicked: sheets.firstRun.openAccessSettings()
                }

                Row {
                    anchors.horizontalCenter: parent.horizontalCenter
                    spacing: 8

                    Spinner {
                        anchors.verticalCenter: parent.verticalCenter
                    }

                    Label {
                        anchors.verticalCenter: parent.verticalCenter
                        text: qsTr("waiting for access…")
                        size: 12
                        soft: true
                    }
                }

                Button {
                    id: continueButton

                    kind: Button.Link
                    objectName: "continueButton"
                    focus: !panel.grantable
                    anchors.horizontalCenter: parent.horizontalCenter
                    text: qsTr("Continue without it")
                    textColor: Theme.inkSoft
                    onClicked: sheets.firstRun.continueWithoutAccess()
                }
            }
        }
    }

    // A closed window does not keep checking for access.
    Binding {
        target: sheets.firstRun
        property: "polling"
        value: accessSheet.visible && (sheets.Window.window?.visible ?? false)
    }
    Component.onDestruction: sheets.firstRun.polling = false
}
