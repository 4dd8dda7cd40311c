// SPDX-License-Identifier: MIT
// The main window. It shows its background at once; the contents are created after the first frame.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Window {
    id: window

    required property SidebarModel sidebar
    required property DetailPages pages
    required property AppCommands commands
    required property QuitQuestion quitQuestion
    // Null if there is no first run.
    required property FirstRunModel firstRun

    property bool filled: false

    title: "Zelk"
    minimumWidth: 960
    minimumHeight: 620
    width: 1200
    height: 780
    color: Theme.ground
    LayoutMirroring.enabled: ReadingDirection.mirrored
    LayoutMirroring.childrenInherit: true

    Rectangle {
        anchors.left: parent.left
        width: window.sidebar.width
        height: parent.height
        color: Theme.groundHi
        visible: !window.filled

        Divider {
            anchors.right: parent.right
            height: parent.height
        }
    }

    Loader {
        anchors.fill: parent
        active: window.filled
        focus: true
        Component.onCompleted: setSource("MainContents.qml", {
            "sidebar": window.sidebar,
            "pages": window.pages,
            "commands": window.commands,
            "quitQuestion": window.quitQuestion,
            "firstRun": window.firstRun
        })
    }
}
