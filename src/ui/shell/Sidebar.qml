// SPDX-License-Identifier: MIT
// The modules, by group; at the foot the tools, the settings and the developer view. Folded up only the symbols stay.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

FocusScope {
    id: bar

    required property SidebarModel sidebar

    // Little room: the rows move together before anything has to scroll.
    readonly property bool tight: bar.height < 700

    objectName: "sidebar"
    implicitWidth: bar.sidebar.width
    width: implicitWidth
    clip: true

    Accessible.role: Accessible.PageTabList
    Accessible.name: qsTr("Modules")

    Behavior on implicitWidth {
        NumberAnimation {
            duration: Motion.gentle
            easing.type: Easing.OutCubic
        }
    }

    // The keyboard, to a row.
    signal handed(place: int, reason: int)

    // The rows of both lists are one column for the arrow keys.
    function step(place: int, by: int) {
        bar.handed(place + by, by < 0 ? Qt.BacktabFocusReason : Qt.TabFocusReason);
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.groundHi
    }

    SidebarHead {
        id: head

        anchors.top: parent.top
        anchors.left: parent.left
        anchors.right: parent.right
        sidebar: bar.sidebar
        tight: bar.tight
    }

    ScrollArea {
        id: scroll

        // The rings of the first row and the last need a little more than the rows do.
        readonly property real rim: 4

        anchors.top: head.bottom
        anchors.topMargin: -scroll.rim
        anchors.bottom: footer.top
        anchors.bottomMargin: -scroll.rim
        anchors.left: parent.left
        anchors.right: parent.right
        contentHeight: column.implicitHeight + 2 * scroll.rim

        Column {
            id: column

            x: 12
            y: scroll.rim
            width: scroll.width - 24
            spacing: bar.tight ? 0 : 2

            Repeater {
                id: modules

                model: bar.sidebar.modules

                SidebarRow {
                    id: moduleRow

                    width: column.width
                    collapsed: bar.sidebar.collapsed
                    tight: bar.tight
                    onPressed: index => bar.sidebar.modules.press(index)
                    onStepped: (index, by) => bar.step(index, by)

                    Connections {
                        target: bar
                        function onHanded(place: int, reason: int) {
                            if (place === moduleRow.index)
                                moduleRow.takeFocus(reason);
                        }
                    }
                }
            }
        }
    }

    Column {
        id: footer

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        leftPadding: 12
        rightPadding: 12
        topPadding: 8
        bottomPadding: bar.tight ? 8 : 16
        spacing: bar.tight ? 0 : 2

        Repeater {
            id: foot

            model: bar.sidebar.foot

            SidebarRow {
                id: footRow

                width: footer.width - 24
                collapsed: bar.sidebar.collapsed
                tight: bar.tight
                onPressed: index => bar.sidebar.foot.press(index)
                onStepped: (index, by) => bar.step(modules.count + index, by)

                Connections {
                    target: bar
                    function onHanded(place: int, reason: int) {
                        if (place === modules.count + footRow.index)
                            footRow.takeFocus(reason);
                    }
                }
            }
        }

        DeveloperSwitch {
            width: footer.width - 24
            sidebar: bar.sidebar
            tight: bar.tight
        }
    }

    Rectangle {
        anchors.right: parent.right
        width: 1
        height: parent.height
        color: Theme.hairline
    }
}
