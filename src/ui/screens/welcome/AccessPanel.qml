// SPDX-License-Identifier: MIT
// Asks for access to the whole drive, and waits for it.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

FocusScope {
    id: panel

    required property AccessPanelModel access

    implicitHeight: column.implicitHeight

    readonly property alias primary: primaryButton

    Column {
        id: column

        anchors.verticalCenter: parent.verticalCenter
        width: panel.width
        spacing: 20

        Tile {
            anchors.horizontalCenter: parent.horizontalCenter
            symbol: panel.access.symbol
            tint: Theme.accent
            side: 88
            symbolSize: 44
            corner: 22
        }

        Column {
            width: parent.width
            spacing: 8

            Words {
                width: parent.width
                text: panel.access.title
                size: 20
                font.weight: Font.DemiBold
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                Accessible.role: Accessible.Heading
            }

            Repeater {
                model: panel.access.lines

                Words {
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
            id: primaryButton

            objectName: "openSettingsButton"
            anchors.horizontalCenter: parent.horizontalCenter
            text: panel.access.settingsLabel
            focus: true
            onClicked: panel.access.openSettings()
        }

        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 8

            Spinner {
                anchors.verticalCenter: parent.verticalCenter
            }

            Words {
                anchors.verticalCenter: parent.verticalCenter
                text: panel.access.waitingLine
                size: 12
                soft: true
            }
        }

        LinkButton {
            objectName: "continueButton"
            anchors.horizontalCenter: parent.horizontalCenter
            text: panel.access.continueLabel
            textColor: Theme.inkSoft
            onClicked: panel.access.continueWithoutIt()
        }
    }
}
