// SPDX-License-Identifier: MIT
// The Tools screen: each feature is a button with its name, what it does and what it removes, and opens its module.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

FocusScope {
    id: view

    required property ToolsScreenModel tools

    Rectangle {
        anchors.fill: parent
        color: Theme.ground
    }

    ModuleHeader {
        id: header

        width: parent.width
        symbol: view.tools.look.symbol
        tint: view.tools.look.color
        title: view.tools.look.title
        subtitle: qsTr("everything Zelk can do")
    }

    ScrollArea {
        width: parent.width
        anchors.top: header.bottom
        anchors.bottom: parent.bottom
        contentHeight: rows.implicitHeight

        Column {
            id: rows

            anchors.left: parent.left
            anchors.leftMargin: Theme.pageMargin
            width: Math.min(parent.width - 2 * Theme.pageMargin, Theme.pageWidth)
            topPadding: Theme.pageMargin
            bottomPadding: Theme.pageMargin
            spacing: 12

            Repeater {
                model: view.tools.tools

                BaseButton {
                    id: row

                    required property int index
                    required property toolFace modelData

                    width: rows.width
                    focus: row.index === 0
                    text: row.modelData.spoken
                    padding: 16
                    implicitHeight: content.implicitHeight + row.topPadding + row.bottomPadding
                    onClicked: view.tools.press(row.index)

                    background: Rectangle {
                        radius: 14
                        color: Theme.surface
                        border.width: 1
                        border.color: row.hovered ? Qt.alpha(row.modelData.look.color, 0.5) : Theme.hairline
                        Behavior on border.color {
                            QuickChange {}
                        }

                        HoverOverlay {
                            anchors.fill: parent
                            radius: parent.radius
                            control: row
                        }
                    }

                    Item {
                        id: content

                        x: row.leftPadding
                        y: row.topPadding
                        width: row.availableWidth
                        height: row.availableHeight
                        implicitHeight: Math.max(tile.height, words.height)

                        Tile {
                            id: tile

                            anchors.left: parent.left
                            anchors.verticalCenter: parent.verticalCenter
                            symbol: row.modelData.look.symbol
                            tint: row.modelData.look.color
                            side: 40
                            symbolSize: 20
                        }

                        TwoLines {
                            id: words

                            anchors.left: tile.right
                            anchors.leftMargin: 16
                            anchors.right: chevron.left
                            anchors.rightMargin: 16
                            anchors.verticalCenter: parent.verticalCenter
                            spacing: 4
                            title: row.modelData.look.title
                            note: row.modelData.detail
                            size: 17
                            noteSize: 14
                            weight: Font.DemiBold
                            wraps: true
                            mute: true

                            Label {
                                width: parent.width
                                topPadding: 4
                                visible: text !== ""
                                text: row.modelData.cleanup
                                size: 12
                                font.weight: Font.Medium
                                wrapMode: Text.Wrap
                                mute: true
                            }
                        }

                        SymbolItem {
                            id: chevron

                            anchors.right: parent.right
                            anchors.verticalCenter: parent.verticalCenter
                            name: "chevron.right"
                            color: Theme.inkSoft
                            size: 12
                        }
                    }
                }
            }
        }
    }
}
