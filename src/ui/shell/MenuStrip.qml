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

    delegate: Title {}

    background: Rectangle {
        color: Theme.groundHi

        Divider {
            width: parent.width
            anchors.bottom: parent.bottom
        }
    }

    contentItem: Row {
        Repeater {
            model: bar.contentModel
        }
    }

    Instantiator {
        model: bar.commands.menus

        delegate: MenuPanel {
            id: sheet

            required property CommandMenu modelData

            title: sheet.modelData.title
            width: Math.max(implicitWidth, Math.round(220 * TextScale.factor))
            onAboutToShow: {
                rows.active = true;
                // Below the title, which begins where reading begins. (The bar sets `x` before.)
                sheet.x = ReadingDirection.mirrored ? sheet.parent.width - sheet.width : 0;
                bar.enter();
            }
            onClosed: bar.leave()

            // Created when the menu is first opened, and then kept.
            Instantiator {
                id: rows

                active: false
                model: sheet.modelData

                delegate: MenuRow {
                    required property int index
                    required property string title
                    required property string name
                    required shortcutText
                    required startsGroup

                    objectName: name
                    text: title
                    onTriggered: sheet.modelData.run(index)
                }
                onObjectAdded: (index, object) => sheet.insertItem(index, object as T.MenuItem)
            }
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

    // The title of a menu.
    component Title: T.MenuBarItem {
        id: item

        // `text` has an ampersand for the mnemonic.
        readonly property string plainText: item.menu?.title ?? ""

        objectName: "menuTitle" + item.plainText
        text: "&" + item.plainText
        // Menus handle the keyboard themselves, and the focus stays where it is.
        focusPolicy: Qt.NoFocus
        implicitWidth: label.implicitWidth + 20
        implicitHeight: Math.max(24, label.implicitHeight + 6)
        Accessible.name: item.plainText
        // Qt 6.4 always reports the role of a menu bar here, so the content item is accessible instead.
        Accessible.ignored: true

        background: Rectangle {
            radius: 6
            color: item.highlighted || item.down ? Theme.surfaceHi : "transparent"

            FocusRing {
                shown: item.visualFocus
                corner: 6
            }
        }

        Item {
            x: item.leftPadding
            y: item.topPadding
            width: item.availableWidth
            height: item.availableHeight

            Accessible.role: Accessible.MenuItem
            Accessible.name: item.plainText
            Accessible.onPressAction: item.triggered()

            Label {
                id: label

                anchors.centerIn: parent
                text: item.plainText
                size: 12
                mute: true
                font.weight: Font.Medium
            }
        }
    }
}
