// SPDX-License-Identifier: MIT
// The menu bar of a system that has none of its own: in the window, in the theme, and with the same entries. F10 opens
// the first menu, Alt with the first letter of one opens that.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import QtQml.Models
import Zelk.App
import Zelk.Controls

T.MenuBar {
    id: bar

    required property AppCommands commands

    // What had the keyboard before the first menu opened, and how many are open.
    property Item before: null
    property int opened: 0

    function enter() {
        if (bar.opened++ === 0 && !bar.before)
            bar.before = bar.Window.activeFocusItem;
    }

    // One menu may have closed for the next.
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
