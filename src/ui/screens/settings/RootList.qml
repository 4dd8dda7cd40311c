// SPDX-License-Identifier: MIT
// The scan roots, each with the button that removes it from the list, or a text if there are none, and the button that
// adds one.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.App
import Zelk.Controls

Column {
    id: list

    required property SettingsScreenModel settings

    // Gives the focus to a row.
    signal handed(row: int, reason: int)

    // Removes a row whose button has the focus, and moves the focus to the row that takes its place, or else to the
    // button below the list.
    function remove(row, ringed) {
        const reason = ringed ? Qt.TabFocusReason : Qt.OtherFocusReason;
        list.settings.removeFolder(row);
        if (rows.count > 0)
            list.handed(Math.min(row, rows.count - 1), reason);
        else
            addButton.forceActiveFocus(reason);
    }

    spacing: 12

    Label {
        width: parent.width
        visible: rows.count === 0
        text: qsTr("No folders yet. Add one, and a survey walks it.")
        size: 13
        soft: true
        wrapMode: Text.Wrap
    }

    Column {
        width: parent.width
        visible: rows.count > 0
        spacing: 4

        Repeater {
            id: rows

            model: list.settings.roots

            // Long paths are elided in the middle, since both ends tell folders apart. The tool tip has the whole path.
            T.Control {
                id: rootRow

                required property int index
                required property string path
                required property string removeName

                width: list.width
                implicitHeight: content.implicitHeight
                hoverEnabled: true

                Item {
                    id: content

                    x: rootRow.leftPadding
                    y: rootRow.topPadding
                    width: rootRow.availableWidth
                    height: rootRow.availableHeight
                    implicitHeight: Math.max(words.implicitHeight, removeButton.implicitHeight)

                    TextSymbol {
                        id: symbolItem

                        anchors.left: parent.left
                        anchors.verticalCenter: parent.verticalCenter
                        name: "folder.fill"
                        color: Theme.accent
                        points: 13
                    }

                    Label {
                        id: words

                        objectName: "rootPath"
                        anchors.left: symbolItem.right
                        anchors.leftMargin: 12
                        anchors.right: removeButton.left
                        anchors.rightMargin: 12
                        anchors.verticalCenter: parent.verticalCenter
                        text: rootRow.path
                        size: 13
                        elide: Text.ElideMiddle
                    }

                    IconButton {
                        id: removeButton

                        anchors.right: parent.right
                        // Its circle ends where the controls below it do.
                        anchors.rightMargin: -removeButton.overhang
                        anchors.verticalCenter: parent.verticalCenter
                        symbol: "minus.circle"
                        size: 16
                        text: rootRow.removeName
                        help: rootRow.removeName
                        onClicked: list.remove(rootRow.index, removeButton.visualFocus)
                    }
                }

                HelpTip {
                    text: words.truncated && !removeButton.hovered ? rootRow.path : ""
                    control: rootRow
                }

                Connections {
                    target: list
                    function onHanded(row: int, reason: int) {
                        if (row === rootRow.index)
                            removeButton.forceActiveFocus(reason);
                    }
                }
            }
        }
    }

    Button {
        id: addButton

        objectName: "addFolderButton"
        anchors.left: parent.left
        symbol: "plus"
        focus: true
        text: qsTr("Add folder…")
        onClicked: list.settings.addFolder()
    }
}
