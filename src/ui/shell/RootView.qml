// SPDX-License-Identifier: MIT
// The sidebar and, beside it, the screen that was chosen in it.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Navigation
import Zelk.Shell

FocusScope {
    id: view

    required property RootModel root

    Sidebar {
        id: sidebar

        height: parent.height
        sidebar: view.root.sidebar
    }

    FocusScope {
        id: detail

        anchors.left: sidebar.right
        anchors.right: parent.right
        height: parent.height
        clip: true
        focus: true

        Repeater {
            model: view.root.pages

            DetailPage {
                pages: view.root.pages
                // Where the keyboard is in a screen that goes, it follows to the one that comes.
                onArrived: focus = true
            }
        }
    }

    Loader {
        id: sheets

        anchors.fill: parent
        active: view.root.firstRun
        Component.onCompleted: setSource(view.root.firstRunView, view.root.firstRunGiven())
    }
}
