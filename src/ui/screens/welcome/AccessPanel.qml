// SPDX-License-Identifier: MIT
// Asks for access to the whole drive and waits for it.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.App
import Zelk.Controls

FocusScope {
    id: panel

    required property AccessPanelModel access

    implicitHeight: column.implicitHeight

    // Whether the system has settings for it.
    readonly property bool grantable: settingsButton.text !== ""
    readonly property T.AbstractButton primary: panel.grantable ? settingsButton : continueButton

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

        PrimaryButton {
            id: settingsButton

            objectName: "openSettingsButton"
            anchors.horizontalCenter: parent.horizontalCenter
            text: SystemTexts.of(SystemTexts.AccessSettings)
            visible: panel.grantable
            focus: panel.grantable
            onClicked: panel.access.openSettings()
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

        LinkButton {
            id: continueButton

            objectName: "continueButton"
            focus: !panel.grantable
            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTr("Continue without it")
            textColor: Theme.inkSoft
            onClicked: panel.access.continueWithoutIt()
        }
    }
}
