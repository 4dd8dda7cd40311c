// SPDX-License-Identifier: MIT
// Open menus, sheets and tool tips.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Section {
    id: section

    required property string longText

    title: "What opens"

    Row {
        spacing: 24

        Stage {
            id: menuStage

            width: 540 * TextScale.factor
            height: 300 * TextScale.factor
            popup: menuPanel

            Button {
                text: "Show a menu"
                onClicked: menuPanel.open()
            }

            MenuPanel {
                id: menuPanel

                parent: menuStage
                y: 44 * TextScale.factor

                MenuRow {
                    text: "Show in Folder"
                    symbol: "folder"
                    shortcutText: "Ctrl+O"
                }
                MenuRow {
                    text: "Under the pointer"
                    symbol: "folder"
                    highlighted: true
                }
                MenuRow {
                    text: "Pressed"
                    symbol: "folder"
                    down: true
                }
                MenuRow {
                    text: "Disabled"
                    symbol: "folder"
                    enabled: false
                }
                MenuRow {
                    text: "Move to Trash"
                    symbol: "trash"
                    alarming: true
                }
                MenuRow {
                    text: "Ticked"
                    startsGroup: true
                    checkable: true
                    checked: true
                }
                MenuRow {
                    text: "Not ticked"
                    checkable: true
                }
                MenuRow {
                    text: section.longText
                }
            }
        }

        Stage {
            width: 140 * TextScale.factor
            height: 96 * TextScale.factor
            popup: shortTip

            IconButton {
                id: told

                anchors.horizontalCenter: parent.horizontalCenter
                text: "Reload"
                symbol: "arrow.clockwise"
            }
            HelpBubble {
                id: shortTip

                visible: false
                delay: 0
                control: told
                text: "Look again"
            }
        }

        Stage {
            width: 330 * TextScale.factor
            height: 160 * TextScale.factor
            popup: longTip

            IconButton {
                id: toldMore

                anchors.horizontalCenter: parent.horizontalCenter
                text: "Reload"
                symbol: "arrow.clockwise"
                help: section.longText
            }
            HelpBubble {
                id: longTip

                visible: false
                delay: 0
                control: toldMore
                text: section.longText
            }
        }
    }

    Button {
        text: "Show a sheet"
        onClicked: sheet.open()
    }

    Stage {
        id: sheetStage

        width: parent.width
        height: 280 * TextScale.factor
        popup: sheet

        Sheet {
            id: sheet

            parent: sheetStage
            title: "Clean safe caches?"
            primary: confirm
            onDismissed: sheet.close()

            Column {
                spacing: 16

                Label {
                    width: parent.width
                    text: sheet.title
                    size: 17
                    font.weight: Font.DemiBold
                }
                Label {
                    width: parent.width
                    text: "Caches come back when a program needs them. Nothing that you made is taken away."
                    soft: true
                    wrapMode: Text.Wrap
                }
                Row {
                    anchors.right: parent.right
                    spacing: 12

                    Button {
                        kind: Button.Plain
                        text: "Cancel"
                        onClicked: sheet.close()
                    }
                    Button {
                        id: confirm

                        kind: Button.Primary
                        text: "Clean"
                        horizontalPadding: 18
                        verticalPadding: 9
                        onClicked: sheet.close()
                    }
                }
            }
        }
    }
}
