// SPDX-License-Identifier: MIT
// The frame of the application. It is on the screen with its grounds at once; what it holds is built behind the first
// frame, a moment later.
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

    Rectangle {
        width: window.root.sidebar.width
        height: parent.height
        color: Theme.groundHi
        visible: !window.root.filled

        Rectangle {
            anchors.right: parent.right
            width: 1
            height: parent.height
            color: Theme.hairline
        }
    }

    Loader {
        anchors.fill: parent
        active: window.root.filled
        focus: true
        Component.onCompleted: setSource("MainContents.qml", {
            "root": window.root
        })
    }
}
