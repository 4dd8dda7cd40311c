// SPDX-License-Identifier: MIT
// The manual: topics at the left, the current one beside them.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

FocusScope {
    id: view

    required property HelpModel help

    implicitWidth: 760
    implicitHeight: 520

    // Shows a newly chosen topic from the top.
    Connections {
        target: view.help
        function onCurrentChanged() {
            page.scrollTo(0);
        }
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.ground
    }

    Rectangle {
        id: side

        width: Math.round(Math.min(view.width * 0.45, 232 * TextScale.factor))
        height: parent.height
        color: Theme.groundHi

        ScrollArea {
            anchors.fill: parent
            contentHeight: topics.implicitHeight

            TopicList {
                id: topics

                width: parent.width
                help: view.help
                focus: true
                // The short list has no pages, so Page Up and Page Down scroll the topic.
                onPageTurned: way => page.scrollTo(page.contentY + way * page.height * 0.9)
            }
        }

        Rectangle {
            anchors.right: parent.right
            width: 1
            height: parent.height
            color: Theme.hairline
        }
    }

    ScrollArea {
        id: page

        objectName: "helpPage"
        anchors.left: side.right
        anchors.right: parent.right
        height: parent.height
        contentHeight: topic.implicitHeight

        TopicPage {
            id: topic

            width: parent.width
            help: view.help
        }
    }
}
