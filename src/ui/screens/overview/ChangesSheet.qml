// SPDX-License-Identifier: MIT
// Shows which folders grew, appeared or vanished since the previous survey, by section.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.App
import Zelk.Controls

Sheet {
    id: sheet

    required property TrendsModel trends

    title: qsTr("What changed")
    primary: done
    sheetWidth: 560
    sheetHeight: 520
    visible: sheet.trends.showChanges
    onDismissed: sheet.trends.closeChanges()

    Item {
        implicitHeight: 260

        TwoLines {
            id: titles

            anchors.left: parent.left
            anchors.right: done.left
            anchors.rightMargin: 16
            title: sheet.title
            note: qsTr("since your previous survey")
            size: 17
            weight: Font.DemiBold
            isHeading: true
        }

        Button {
            id: done

            kind: Button.Primary
            objectName: "changesDone"
            anchors.right: parent.right
            anchors.verticalCenter: titles.verticalCenter
            horizontalPadding: 20
            verticalPadding: 9
            focus: true
            text: qsTr("Done")
            onClicked: sheet.trends.closeChanges()
        }

        Label {
            anchors.centerIn: parent
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            visible: sheet.trends.changes.empty
            text: qsTr("No notable folder changes since the last survey.")
            size: 13
            soft: true
        }

        // A ListView, since there may be hundreds of folders.
        ListView {
            id: list

            objectName: "changesList"
            anchors.top: titles.bottom
            anchors.topMargin: 16
            anchors.bottom: parent.bottom
            width: parent.width
            visible: !sheet.trends.changes.empty
            model: sheet.trends.changes
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            activeFocusOnTab: true
            currentIndex: -1
            highlightFollowsCurrentItem: false

            Accessible.role: Accessible.List
            Accessible.name: qsTr("What changed")

            Keys.onUpPressed: list.flickBy(-48)
            Keys.onDownPressed: list.flickBy(48)

            function flickBy(distance: real) {
                const end = Math.max(list.originY, list.originY + list.contentHeight - list.height);
                list.contentY = Math.min(Math.max(list.contentY + distance, list.originY), end);
            }

            T.ScrollBar.vertical: ThinScrollBar {}

            delegate: Column {
                id: place

                required property string heading
                required property int kind
                required property string name
                required property string path
                required property string size

                readonly property color tint: place.kind === ChangesModel.Grew ? "#3e9bff" : place.kind === ChangesModel.Appeared ? "#32c77b" : Theme.inkSoft

                width: ListView.view.width

                Label {
                    width: parent.width
                    topPadding: 14
                    bottomPadding: 6
                    text: place.heading
                    size: 12
                    font.weight: Font.DemiBold
                    color: Theme.textOn(place.tint, Theme.textGround)
                    visible: text !== ""
                    Accessible.role: Accessible.Heading
                }

                Item {
                    width: parent.width
                    implicitHeight: Math.max(44, words.implicitHeight + 14)

                    Accessible.role: Accessible.ListItem
                    Accessible.name: AccessibleText.joined([place.name, place.path, place.size])

                    TextSymbol {
                        id: folder

                        anchors.left: parent.left
                        anchors.verticalCenter: parent.verticalCenter
                        name: "folder.fill"
                        color: place.tint
                        points: 12
                    }

                    TwoLines {
                        id: words

                        anchors.left: folder.right
                        anchors.leftMargin: 12
                        anchors.right: figure.left
                        anchors.rightMargin: 16
                        anchors.verticalCenter: parent.verticalCenter
                        title: place.name
                        note: place.path
                        noteSize: 9
                        elide: Text.ElideMiddle
                        mute: true
                    }

                    AnimatedNumber {
                        id: figure

                        anchors.right: parent.right
                        anchors.rightMargin: 12
                        anchors.verticalCenter: parent.verticalCenter
                        phrase: place.size
                        pixelSize: 12
                        mute: true
                    }
                }
            }

            FocusRing {
                shown: list.activeFocus
                corner: 8
            }
        }
    }
}
