// SPDX-License-Identifier: MIT
// The settings, as a screen with a module header, or without one in a window.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

FocusScope {
    id: view

    required property SettingsScreenModel settings
    // False in a window, which has a title bar.
    property bool headed: true

    Rectangle {
        anchors.fill: parent
        color: Theme.ground
    }

    ModuleHeader {
        id: header

        anchors.left: parent.left
        anchors.right: parent.right
        visible: view.headed
        height: view.headed ? implicitHeight : 0
        symbol: view.settings.look.symbol
        tint: view.settings.look.color
        title: view.settings.look.title
        subtitle: view.settings.look.subtitle
    }

    ScrollArea {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: header.bottom
        anchors.bottom: parent.bottom
        contentHeight: sections.implicitHeight + 2 * 24

        Item {
            width: parent.width

            Column {
                id: sections

                x: 24
                y: 24
                width: Math.min(parent.width - 2 * 24, 640 * TextScale.factor)
                spacing: 24

                SettingsSection {
                    width: parent.width
                    title: qsTr("Scan roots")

                    RootList {
                        width: parent.width
                        settings: view.settings
                    }
                }

                SettingsSection {
                    width: parent.width
                    title: qsTr("Cleanup")

                    StepperField {
                        width: parent.width
                        label: view.settings.ageFilterText
                        size: 13
                        from: view.settings.leastAge
                        to: view.settings.greatestAge
                        value: view.settings.ageFilterDays
                        onMoved: value => view.settings.ageFilterDays = value
                    }

                    Divider {
                        width: parent.width
                    }

                    Column {
                        width: parent.width
                        spacing: 4

                        ToggleSwitch {
                            width: parent.width
                            text: qsTr("Delete permanently by default")
                            size: 13
                            checked: view.settings.hardDelete
                            onToggled: view.settings.hardDelete = checked
                        }

                        Words {
                            width: parent.width
                            text: qsTr("Off keeps cleanup reversible (moves to Trash).")
                            size: 11
                            soft: true
                            wrapMode: Text.Wrap
                        }
                    }
                }

                SettingsSection {
                    width: parent.width
                    title: qsTr("Appearance")

                    FlowRow {
                        width: parent.width
                        spacing: 12

                        Words {
                            height: picker.implicitHeight
                            text: qsTr("Theme")
                            size: 13
                            verticalAlignment: Text.AlignVCenter
                            mute: true
                        }

                        SegmentedPicker {
                            id: picker

                            label: qsTr("Theme")
                            options: [qsTr("System"), qsTr("Light"), qsTr("Dark")]
                            current: view.settings.theme
                            onPicked: index => view.settings.theme = index
                        }
                    }
                }

                SecondaryButton {
                    symbol: "arrow.clockwise"
                    text: qsTr("Re-scan now")
                    onClicked: view.settings.rescan()
                }
            }
        }
    }
}
