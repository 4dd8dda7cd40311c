// SPDX-License-Identifier: MIT
// All that the main window holds: the menus where the system has no bar of its own, the sidebar, the chosen screen
// beside it, and the sheets over both.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App

FocusScope {
    id: contents

    required property SidebarModel sidebar
    required property DetailPages pages
    required property AppCommands commands
    required property QuitQuestion quitQuestion
    required property FirstRunModel firstRun

    focus: true

    MenuStrip {
        id: menuStrip

        anchors.left: parent.left
        anchors.right: parent.right
        height: visible ? implicitHeight : 0
        commands: contents.commands
        visible: Qt.platform.os !== "osx"
        enabled: visible
    }

    FocusScope {
        anchors.top: menuStrip.bottom
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        focus: true

        Sidebar {
            id: sidePanel

            height: parent.height
            sidebar: contents.sidebar
        }

        FocusScope {
            anchors.left: sidePanel.right
            anchors.right: parent.right
            height: parent.height
            clip: true
            focus: true

            Repeater {
                model: contents.pages

                DetailPage {
                    pages: contents.pages
                    // Where the keyboard is in a screen that goes, it follows to the one that comes.
                    onArrived: focus = true
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
