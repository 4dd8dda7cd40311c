// SPDX-License-Identifier: MIT
// The list of large files with its head, and the context menu that its rows share. Return and the menu key open the
// menu of the current row. The Trash key moves the file of a row that the user chose.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.App
import Zelk.Controls

FocusScope {
    id: files

    required property ClutterScreenModel clutter

    ClutterHead {
        id: head

        width: parent.width
        clutter: files.clutter
    }

    Divider {
        id: rule

        anchors.top: head.bottom
        width: parent.width
    }

    RowList {
        id: list

        objectName: "clutterList"
        anchors.top: rule.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        topMargin: 8
        bottomMargin: 16
        focus: true
        name: qsTr("Files")
        model: files.clutter.rows

        function openMenu(row: int, name: string, at: point) {
            files.clutter.pick(row);
            fileMenu.title = name;
            fileMenu.popup(list, ReadingDirection.mirrored ? at.x - fileMenu.width : at.x, at.y);
        }

        // Asks the current row's delegate, which must be in view, to open the menu.
        signal menuOfCurrentWanted

        function openMenuByKey(again: bool) {
            if (again)
                return;
            list.positionViewAtIndex(list.currentIndex, ListView.Contain);
            list.byKey = true;
            list.menuOfCurrentWanted();
            fileMenu.currentIndex = 0;
        }

        Keys.onReturnPressed: event => list.openMenuByKey(event.isAutoRepeat)
        Keys.onEnterPressed: event => list.openMenuByKey(event.isAutoRepeat)
        Keys.onMenuPressed: event => list.openMenuByKey(event.isAutoRepeat)
        // Ignores auto-repeat, which would delete one file after another as they move up.
        Keys.onPressed: event => {
            if (!files.clutter.isTrashKey(event.key, event.modifiers))
                return;
            event.accepted = true;
            if (event.isAutoRepeat || !list.rowChosen)
                return;
            list.byKey = true;
            files.clutter.pick(list.currentIndex);
            files.clutter.moveToTrash();
        }

        delegate: ClutterRow {
            id: fileRow

            width: Math.min(list.width, Theme.pageWidth + 2 * Theme.pageMargin)
            ringed: list.ringed && ListView.isCurrentItem
            onPressed: list.take(index)
            onAsked: at => list.openMenu(index, actions, mapToItem(list, at))

            Connections {
                target: list
                enabled: fileRow.ListView.isCurrentItem
                function onMenuOfCurrentWanted() {
                    fileRow.asked(fileRow.menuPlace);
                }
            }
        }

        Connections {
            target: files.clutter
            function onRearranged() {
                list.forceLayout();
                list.rowChosen = false;
                list.currentIndex = Math.min(0, list.count - 1);
                list.contentY = list.originY - list.topMargin;
            }
        }
    }

    // Reached by keys that the list does not handle.
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier && list.activeFocus;
        if (event.accepted)
            list.openMenuByKey(false);
    }

    MenuPanel {
        id: fileMenu

        closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

        MenuRow {
            objectName: "revealFile"
            text: SystemTexts.of(SystemTexts.RevealFile)
            symbol: "folder"
            onTriggered: files.clutter.reveal()
        }

        MenuRow {
            objectName: "trashFile"
            text: qsTr("Move to Trash")
            symbol: "trash"
            alarming: true
            onTriggered: files.clutter.moveToTrash()
        }
    }

    PopupHome {
        home: list
        popup: fileMenu
    }

    // A large file: name, folder, age and size, and the button of its context menu. A right click opens the menu at the
    // pointer.
    component ClutterRow: ListRow {
        id: row

        required property int index
        required property string symbol
        required property color tint
        required property string name
        required property string folder
        required property string age
        required property string size
        required spoken
        required property string actions

        // Where the menu opens unless the pointer asked for it.
        readonly property point menuPlace: Qt.point(ReadingDirection.mirrored ? more.x + more.width : more.x, more.y + more.height + 4)

        signal asked(point at)

        implicitHeight: Math.max(tile.height, texts.implicitHeight) + 2 * 10

        Rectangle {
            id: ground

            anchors.fill: parent
            anchors.leftMargin: 16
            anchors.rightMargin: 16
            anchors.topMargin: 1
            anchors.bottomMargin: 1
            radius: 10
            color: row.hovered ? Theme.hoverWash : "transparent"

            FocusRing {
                anchors.margins: 0
                shown: row.ringed
                corner: ground.radius
            }
        }

        TapHandler {
            acceptedButtons: Qt.RightButton
            onTapped: eventPoint => {
                row.pressed();
                row.asked(eventPoint.position);
            }
        }

        Tile {
            id: tile

            anchors.left: parent.left
            anchors.leftMargin: 26
            anchors.verticalCenter: parent.verticalCenter
            symbol: row.symbol
            tint: row.tint.valid ? row.tint : Theme.otherFiles
            side: 36
            symbolSize: 17
        }

        TwoLines {
            id: texts

            anchors.left: tile.right
            anchors.leftMargin: 14
            // Anchored at one end only: with a width that is known from the start, the lines are laid out once.
            width: row.width - (26 + tile.width + 14) - (16 + ageText.width + sizeText.width + 12 + more.width + more.anchors.rightMargin)
            anchors.verticalCenter: parent.verticalCenter
            title: row.name
            note: row.folder
            noteSize: 10
            weight: Font.Medium
            elide: Text.ElideMiddle
            mute: true
        }

        Label {
            id: ageText

            anchors.right: sizeText.left
            anchors.verticalCenter: parent.verticalCenter
            width: Math.round(90 * TextScale.factor)
            horizontalAlignment: Text.AlignRight
            text: row.age
            size: 11
            soft: true
            mute: true
        }

        Label {
            id: sizeText

            anchors.right: more.left
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            width: Math.round(86 * TextScale.factor)
            horizontalAlignment: Text.AlignRight
            text: row.size
            size: 13
            font.weight: Font.DemiBold
            mute: true
        }

        RowButton {
            id: more

            objectName: "fileMenu" + row.index
            anchors.right: parent.right
            anchors.rightMargin: Theme.pageMargin - more.overhang
            anchors.verticalCenter: parent.verticalCenter
            text: row.actions
            Accessible.description: qsTr("opens a menu")
            symbol: "ellipsis.circle"
            onClicked: {
                row.pressed();
                row.asked(row.menuPlace);
            }
        }
    }
}
