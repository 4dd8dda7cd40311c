// SPDX-License-Identifier: MIT
// What can be done to a file.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Clutter
import Zelk.Components

MenuPanel {
    id: menu

    required property ClutterScreenModel clutter

    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

    MenuRow {
        objectName: "revealFile"
        text: menu.clutter.revealLabel
        symbol: "folder"
        onTriggered: menu.clutter.reveal()
    }

    MenuRow {
        objectName: "trashFile"
        text: menu.clutter.trashLabel
        symbol: "trash"
        alarming: true
        onTriggered: menu.clutter.moveToTrash()
    }
}
