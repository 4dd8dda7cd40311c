// SPDX-License-Identifier: MIT
// The settings, as a screen with a module header, or without one in a small window. There they stand close together and
// on no cards, so that the window shows all of them at the usual text size.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

FocusScope {
    id: view

    required property SettingsScreenModel settings
    // False in a window, which has a title bar.
    property bool headed: true

    readonly property int gap: view.headed ? 24 : 16
    readonly property int side: view.headed ? Theme.pageMargin : 24

    Rectangle {
        anchors.fill: parent
        color: Theme.ground
    }

    ModuleHeader {
        id: header

        width: parent.width
        visible: view.headed
        height: view.headed ? implicitHeight : 0
        symbol: view.settings.look.symbol
        tint: view.settings.look.color
        title: view.settings.look.title
        subtitle: view.settings.look.subtitle
    }

    ScrollArea {
        width: parent.width
        anchors.top: header.bottom
        anchors.bottom: parent.bottom
        contentHeight: sections.implicitHeight + 2 * view.gap
        // Initially no control is focused, but the page keys scroll.
        focus: true

        Accessible.role: Accessible.Document
        Accessible.name: view.settings.look.title

        Item {
            width: parent.width

            Column {
                id: sections

                anchors.left: parent.left
                anchors.leftMargin: view.side
                y: view.gap
                width: Math.min(parent.width - 2 * view.side, 640 * TextScale.factor)
                spacing: view.gap

                SettingsSection {
                    width: parent.width
                    carded: view.headed
                    title: qsTr("Scan roots")

                    RootList {
                        width: parent.width
                        settings: view.settings
                    }
                }

                SettingsSection {
                    width: parent.width
                    carded: view.headed
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
                        visible: view.headed
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

                        Label {
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
                    carded: view.headed
                    title: qsTr("Appearance")

                    FlowRow {
                        width: parent.width
                        spacing: 12

                        Label {
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

                Button {
                    anchors.left: parent.left
                    symbol: "arrow.clockwise"
                    text: qsTr("Re-scan now")
                    onClicked: view.settings.rescan()
                }
            }
        }
    }

    // A heading and the settings below it, on a card if `carded`.
    component SettingsSection: Column {
        id: section

        required property string title
        required property bool carded
        default property alias content: body.data

        spacing: section.carded ? 8 : 4

        Eyebrow {
            anchors.left: parent.left
            anchors.leftMargin: section.carded ? 4 : 0
            text: section.title
        }

        Card {
            width: section.width
            padding: section.carded ? 16 : 0
            background.visible: section.carded

            Column {
                id: body

                width: section.width - (section.carded ? 2 * 16 : 0)
                spacing: section.carded ? 12 : 8
            }
        }
    }
}
