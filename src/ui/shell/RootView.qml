// SPDX-License-Identifier: MIT
// The sidebar and, beside it, the screen that was chosen in it.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Navigation
import Zelk.Shell

FocusScope {
    id: rootView

    required property RootModel root

    Sidebar {
        id: sidePanel

        height: parent.height
        sidebar: rootView.root.sidebar
    }

    FocusScope {
        id: detail

        anchors.left: sidePanel.right
        anchors.right: parent.right
        height: parent.height
        clip: true
        focus: true

        Repeater {
            model: rootView.root.pages

            DetailPage {
                pages: rootView.root.pages
                // Where the keyboard is in a screen that goes, it follows to the one that comes.
                onArrived: focus = true
            }
        }
    }

    Loader {
        id: sheets

        anchors.fill: parent
        active: rootView.root.firstRun
        Component.onCompleted: setSource(rootView.root.firstRunView, rootView.root.firstRunGiven())
    }

    Loader {
        active: rootView.root.quitQuestion.asked
        Component.onCompleted: setSource("QuitSheet.qml", {
            "question": rootView.root.quitQuestion
        })
    }
}
