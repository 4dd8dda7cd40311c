// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Components

Card {
    id: card

    Column {
        width: parent.width
        spacing: 16

        FlowRow {
            width: parent.width
            spacing: 24

            ToggleSwitch {
                text: "Developer view"
            }
            ToggleSwitch {
                text: "Developer view"
                checked: true
            }
            ToggleSwitch {
                text: "Developer view"
                checked: true
                enabled: false
            }
            StepperField {
                label: "Older than"
                from: 0
                to: 365
                value: 30
                step: 5
            }
            StepperField {
                label: "At the start"
                from: 0
                to: 9
                value: 0
            }
            SegmentedPicker {
                label: "Appearance"
                options: ["System", "Light", "Dark"]
                current: 2
            }
            SegmentedPicker {
                label: "Appearance"
                options: ["System", "Light", "Dark"]
                current: 0
                enabled: false
            }
        }

        SecondaryButton {
            text: "Show a sheet"
            onClicked: sheet.open()
        }
    }

    Sheet {
        id: sheet

        title: "Clean safe caches?"
        primary: confirm
        onDismissed: sheet.close()

        Column {
            spacing: 16

            Words {
                width: parent.width
                text: sheet.title
                size: 17
                font.weight: Font.DemiBold
            }
            Words {
                width: parent.width
                text: "Caches come back when a program needs them. Nothing that you made is taken away."
                soft: true
                wrapMode: Text.Wrap
            }
            Row {
                anchors.right: parent.right
                spacing: 12

                SecondaryButton {
                    text: "Cancel"
                    onClicked: sheet.close()
                }
                PrimaryButton {
                    id: confirm

                    text: "Clean"
                    horizontalPadding: 18
                    verticalPadding: 9
                    onClicked: sheet.close()
                }
            }
        }
    }
}
