// SPDX-License-Identifier: MIT
// The menu bar within the window, for systems without a global one. F10 opens the first menu, Alt with a menu's first
// letter opens that menu.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import QtQml.Models
import Zelk.App
import Zelk.Controls

T.MenuBar {
    id: bar

    required property AppCommands commands

    // The item that had the focus before the first menu opened, and the number of open menus.
    property Item before: null
    property int opened: 0

    function enter() {
        if (bar.opened++ === 0 && !bar.before)
            bar.before = bar.Window.activeFocusItem;
    }

    // Restores the focus later, since another menu may open right after this one.
    function leave() {
        --bar.opened;
        back.restart();
    }

    function giveBack() {
        if (bar.opened > 0)
            return;
        if (bar.before?.visible)
            bar.before.forceActiveFocus(Qt.MenuBarFocusReason);
        bar.before = null;
    }

    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: contentHeight + topPadding + bottomPadding
    objectName: "menus"
    leftPadding: 8
    rightPadding: 8
    topPadding: 3
    bottomPadding: 4

    Accessible.role: Accessible.MenuBar
    Accessible.name: qsTr("Menu bar")

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
            onAboutToShow: bar.enter()
            onClosed: bar.leave()
        }
        onObjectAdded: (index, object) => bar.insertMenu(index, object as T.Menu)
    }

    // Makes the shortcuts work throughout the application while all menus are closed.
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

    Timer {
        id: back

        interval: 0
        onTriggered: bar.giveBack()
    }

    Shortcut {
        sequence: "F10"
        enabled: bar.enabled
        onActivated: (bar.itemAt(0) as T.MenuBarItem)?.triggered()
    }
}
