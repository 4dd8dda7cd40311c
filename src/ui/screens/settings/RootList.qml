// SPDX-License-Identifier: MIT
// The scan roots, or a text if there are none, and the button that adds one.
pragma ComponentBehavior: Bound

import QtQuick
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
        visible: list.settings.roots.empty
        text: qsTr("No folders yet. Add one, and a survey walks it.")
        size: 13
        soft: true
        wrapMode: Text.Wrap
    }

    Column {
        width: parent.width
        visible: !list.settings.roots.empty
        spacing: 4

        Repeater {
            id: rows

            model: list.settings.roots

            RootRow {
                id: rootRow

                width: list.width
                onRemoveClicked: ringed => list.remove(index, ringed)

                Connections {
                    target: list
                    function onHanded(row: int, reason: int) {
                        if (row === rootRow.index)
                            rootRow.takeKeyboard(reason);
                    }
                }
            }
        }
    }

    SecondaryButton {
        id: addButton

        objectName: "addFolderButton"
        symbol: "plus"
        focus: true
        text: qsTr("Add folder…")
        onClicked: list.settings.addFolder()
    }
}
