// SPDX-License-Identifier: MIT
// The settings, as a screen with the header of a module, and without it as a small window of their own.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

FocusScope {
    id: view

    required property SettingsScreenModel settings
    // A window has its title already.
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
        symbol: view.settings.symbol
        tint: view.settings.tint
        title: view.settings.title
        subtitle: view.settings.subtitle
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
                    title: view.settings.rootsTitle

                    RootList {
                        width: parent.width
                        settings: view.settings
                    }
                }

                SettingsSection {
                    width: parent.width
                    title: view.settings.cleanupTitle

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
                            text: view.settings.hardDeleteLabel
                            size: 13
                            checked: view.settings.hardDelete
                            onToggled: view.settings.hardDelete = checked
                        }

                        Words {
                            width: parent.width
                            text: view.settings.hardDeleteNote
                            size: 11
                            soft: true
                            wrapMode: Text.Wrap
                        }
                    }
                }

                SettingsSection {
                    width: parent.width
                    title: view.settings.appearanceTitle

                    FlowRow {
                        width: parent.width
                        spacing: 12

                        Words {
                            height: picker.implicitHeight
                            text: view.settings.themeLabel
                            size: 13
                            verticalAlignment: Text.AlignVCenter
                            mute: true
                        }

                        SegmentedPicker {
                            id: picker

                            label: view.settings.themeLabel
                            options: view.settings.themes
                            current: view.settings.theme
                            onPicked: index => view.settings.theme = index
                        }
                    }
                }

                SecondaryButton {
                    symbol: "arrow.clockwise"
                    text: view.settings.rescanLabel
                    onClicked: view.settings.rescan()
                }
            }
        }
    }
}
