// SPDX-License-Identifier: MIT
// The help window with the manual: topics at the left, the current one beside them. The arrow keys, Home and End change
// the current topic, Page Up and Page Down scroll it.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.App
import Zelk.Controls

SecondaryWindow {
    id: window

    readonly property HelpModel help: HelpModel {}

    title: qsTr("Zelk Help")
    width: 760
    height: 520
    minimumWidth: 520
    minimumHeight: 360
    flags: Qt.Window

    // Shows a newly chosen topic from the top.
    Connections {
        target: window.help
        function onCurrentChanged() {
            page.scrollTo(0);
        }
    }

    Rectangle {
        id: sidePanel

        anchors.left: parent.left
        width: Math.round(Math.min(window.width * 0.45, 232 * TextScale.factor))
        height: parent.height
        color: Theme.groundHi

        ScrollArea {
            anchors.fill: parent
            contentHeight: topicList.implicitHeight

            FocusScope {
                id: topicList

                // The short list has no pages, so Page Up and Page Down scroll the topic. -1 is up, 1 is down.
                function turnPage(way) {
                    page.scrollTo(page.contentY + way * page.height * 0.9);
                }

                // Focuses the row chosen by the keyboard, visibly, which scrolls it into view.
                function followKeyboard() {
                    const row = topicRows.itemAt(window.help.current) as T.AbstractButton;
                    row.forceActiveFocus(Qt.TabFocusReason);
                    row.focusReason = Qt.TabFocusReason;
                }

                width: parent.width
                implicitHeight: column.implicitHeight
                focus: true

                Accessible.role: Accessible.List
                Accessible.name: qsTr("Topics")

                Keys.onPressed: event => {
                    event.accepted = true;
                    switch (event.key) {
                    case Qt.Key_PageUp:
                        return topicList.turnPage(-1);
                    case Qt.Key_PageDown:
                        return topicList.turnPage(1);
                    case Qt.Key_Up:
                        window.help.selectPrevious();
                        break;
                    case Qt.Key_Down:
                        window.help.selectNext();
                        break;
                    case Qt.Key_Home:
                        window.help.selectFirst();
                        break;
                    case Qt.Key_End:
                        window.help.selectLast();
                        break;
                    default:
                        event.accepted = false;
                        return;
                    }
                    topicList.followKeyboard();
                }

                Column {
                    id: column

                    width: parent.width
                    padding: 12
                    spacing: 2

                    Repeater {
                        id: topicRows

                        model: window.help.topics

                        TopicRow {
                            width: column.width - 2 * column.padding
                            current: index === window.help.current
                            focus: current
                            onClicked: window.help.select(index)
                        }
                    }
                }
            }
        }

        Divider {
            anchors.right: parent.right
            height: parent.height
        }
    }

    ScrollArea {
        id: page

        objectName: "helpPage"
        anchors.left: sidePanel.right
        anchors.right: parent.right
        height: parent.height
        contentHeight: article.implicitHeight + 2 * 32

        // The topic, limited to a readable line length.
        Column {
            id: article

            anchors.left: parent.left
            anchors.leftMargin: 32
            y: 32
            width: Math.min(page.width - 2 * 32, 560 * TextScale.factor)
            spacing: 12

            Tile {
                anchors.left: parent.left
                symbol: window.help.topic.symbol
                tint: window.help.topic.tint
                side: 40
                symbolSize: 20
            }

            TwoLines {
                width: parent.width
                topPadding: 8
                bottomPadding: 4
                spacing: 12
                title: window.help.topic.title
                note: window.help.topic.lead
                size: 20
                noteSize: 15
                weight: Font.DemiBold
                wraps: true
                lineHeight: 1.3
                isHeading: true
            }

            Repeater {
                model: window.help.topic.paragraphs

                Label {
                    required property string modelData

                    width: article.width
                    text: modelData
                    size: 13
                    lineHeight: 1.45
                    wrapMode: Text.Wrap
                }
            }
        }
    }

    // A topic in the list. Only the current one is in the focus chain; arrow keys move from there.
    component TopicRow: T.ItemDelegate {
        id: row

        required property int index
        required property helpTopic modelData
        required property bool current

        text: row.modelData.title
        // (It stays there while it has the focus, even when another one becomes current.)
        focusPolicy: row.current || row.activeFocus ? Qt.StrongFocus : Qt.ClickFocus
        leftPadding: 12
        rightPadding: 12
        topPadding: 8
        bottomPadding: 8
        implicitHeight: content.implicitHeight + row.topPadding + row.bottomPadding
        hoverEnabled: true
        Keys.forwardTo: [buttonKeys]

        Accessible.name: row.text
        Accessible.selectable: true
        Accessible.selected: row.current
        Accessible.onPressAction: buttonKeys.press(false)

        ButtonKeys {
            id: buttonKeys

            control: row
        }

        background: Rectangle {
            radius: 8
            color: row.current ? Qt.alpha(row.modelData.tint, 0.18) : "transparent"

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
            implicitHeight: Math.max(symbolItem.height, label.height)

            TextSymbol {
                id: symbolItem

                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                name: row.modelData.symbol
                color: row.modelData.tint
                points: 14
            }

            Label {
                id: label

                anchors.left: symbolItem.right
                anchors.leftMargin: 12
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                text: row.modelData.title
                size: 13
                font.weight: row.current ? Font.DemiBold : Font.Medium
                wrapMode: Text.Wrap
                mute: true
            }
        }
    }
}
