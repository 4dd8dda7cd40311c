// SPDX-License-Identifier: MIT
// All that the main window holds.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Shell

FocusScope {
    id: contents

    required property RootModel root

    focus: true

    MenuStrip {
        id: menuStrip

        anchors.left: parent.left
        anchors.right: parent.right
        height: visible ? implicitHeight : 0
        commands: contents.root.commands
        visible: contents.root.menusInWindow
        enabled: visible
    }

    RootView {
        anchors.top: menuStrip.bottom
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        root: contents.root
        focus: true
    }
}
