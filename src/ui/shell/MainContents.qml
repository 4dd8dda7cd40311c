// SPDX-License-Identifier: MIT
// The contents of the main window: the menu bar if the system has no global one, the sidebar, the current screen, and
// the sheets.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.App

FocusScope {
    id: contents

    required property SidebarModel sidebar
    required property DetailPages pages
    required property AppCommands commands
    required property QuitQuestion quitQuestion
    required property FirstRunModel firstRun

    focus: true

    function enterScreen(reason: int) {
        stage.forceActiveFocus(reason);
        contents.showKeyboard(reason);
    }

    // forceActiveFocus() does not update the reason of a control that already has the focus.
    function showKeyboard(reason: int) {
        const control = contents.Window.activeFocusItem as T.Control;
        if (control)
            control.focusReason = reason;
        // In a list the focus ring is on the current row.
        for (let item = contents.Window.activeFocusItem; item; item = item.parent) {
            const list = item as ListView;
            if (list && list["byKey"] !== undefined)
                list["byKey"] = reason === Qt.ShortcutFocusReason;
        }
    }

    Connections {
        target: contents.commands
        function onRanByKey(leadsToScreen: bool) {
            if (leadsToScreen)
                contents.enterScreen(Qt.ShortcutFocusReason);
            else
                contents.showKeyboard(Qt.ShortcutFocusReason);
        }
    }

    MenuStrip {
        id: menuStrip

        width: parent.width
        height: visible ? implicitHeight : 0
        commands: contents.commands
        visible: Qt.platform.os !== "osx"
        enabled: visible
    }

    FocusScope {
        anchors.top: menuStrip.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        focus: true

        Sidebar {
            id: sidePanel

            anchors.left: parent.left
            height: parent.height
            sidebar: contents.sidebar
            onEntered: contents.enterScreen(Qt.MouseFocusReason)
        }

        FocusScope {
            id: stage

            anchors.left: sidePanel.right
            anchors.right: parent.right
            height: parent.height
            clip: true
            focus: true

            Repeater {
                model: contents.pages

                // Loads the view of a screen when it is first shown, and keeps it.
                Loader {
                    id: page

                    required property int index
                    required property url view
                    required property bool built
                    required property bool current

                    // `built` may change before all required properties are set.
                    property bool made: false

                    function build() {
                        if (page.made && page.built)
                            page.setSource(page.view, contents.pages.given(page.index));
                    }

                    // Moves the focus along to the new screen if the old one had it.
                    function arrive() {
                        if (page.current)
                            page.focus = true;
                    }

                    anchors.fill: parent
                    visible: page.current

                    Component.onCompleted: {
                        page.made = true;
                        page.build();
                        page.arrive();
                    }
                    onBuiltChanged: page.build()
                    onCurrentChanged: page.arrive()
                    onLoaded: page.item.focus = true
                }
            }
        }

        Loader {
            anchors.fill: parent
            active: contents.firstRun?.started ?? false
            Component.onCompleted: setSource("FirstRunSheets.qml", {
                "firstRun": contents.firstRun
            })
        }

        Loader {
            active: contents.quitQuestion.asked
            Component.onCompleted: setSource("QuitSheet.qml", {
                "question": contents.quitQuestion
            })
        }
    }
}
