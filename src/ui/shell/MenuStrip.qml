// SPDX-License-Identifier: MIT
// The menu bar of a system that has none of its own: in the window, in the theme, and with the same entries. F10 goes
// to it, as does Alt with the first letter of a menu.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import QtQml.Models
import Zelk.Shell
import Zelk.Theme

T.MenuBar {
    id: bar

    required property AppCommands commands

    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: contentHeight + topPadding + bottomPadding
    objectName: "menus"
    leftPadding: 8
    rightPadding: 8
    topPadding: 3
    bottomPadding: 4

    Accessible.role: Accessible.MenuBar
    Accessible.name: bar.commands.barName

    delegate: MenuTitle {}

    background: Rectangle {
        color: Theme.groundHi

        Rectangle {
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            height: 1
            color: Theme.hairline
        }
    }

    contentItem: Row {
        Repeater {
            model: bar.contentModel
        }
    }

    Instantiator {
        model: bar.commands.menus

        delegate: MenuSheet {
            required property CommandMenu modelData

            commands: modelData
        }
        onObjectAdded: (index, object) => bar.insertMenu(index, object as T.Menu)
    }

    // The keys of the entries hold everywhere in the application, with every menu closed.
    Instantiator {
        model: bar.commands.shortcuts

        delegate: Shortcut {
            required property int index
            required property string modelData

            sequence: modelData
            context: Qt.ApplicationShortcut
            enabled: bar.enabled
            onActivated: bar.commands.runShortcut(index)
        }
    }

    Shortcut {
        sequence: "F10"
        enabled: bar.enabled
        onActivated: (bar.itemAt(0) as MenuTitle)?.forceActiveFocus(Qt.MenuBarFocusReason)
    }
}
