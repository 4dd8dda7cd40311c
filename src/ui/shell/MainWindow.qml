// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Shell
import Zelk.Theme

Window {
    id: window

    required property RootModel root

    title: window.root.title
    minimumWidth: 960
    minimumHeight: 620
    width: 1200
    height: 780
    color: Theme.ground

    MenuStrip {
        id: menus

        anchors.left: parent.left
        anchors.right: parent.right
        height: visible ? implicitHeight : 0
        commands: window.root.commands
        visible: window.root.menusInWindow
        enabled: visible
    }

    RootView {
        id: rootView

        anchors.top: menus.bottom
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        root: window.root
        focus: true
    }
}
