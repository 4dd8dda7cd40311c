// SPDX-License-Identifier: MIT
// The context menu of a file.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.App
import Zelk.Controls

MenuPanel {
    id: fileMenu

    required property ClutterScreenModel clutter

    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

    MenuRow {
        objectName: "revealFile"
        text: SystemTexts.of(SystemTexts.RevealFile)
        symbol: "folder"
        onTriggered: fileMenu.clutter.reveal()
    }

    MenuRow {
        objectName: "trashFile"
        text: qsTr("Move to Trash")
        symbol: "trash"
        alarming: true
        onTriggered: fileMenu.clutter.moveToTrash()
    }
}
