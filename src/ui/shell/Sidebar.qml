// SPDX-License-Identifier: MIT
// The modules by group, and in the footer the tools, the settings and the developer switch. Collapsed, only symbols
// show.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

FocusScope {
    id: bar

    required property SidebarModel sidebar

    // Reduces the spacing in a low window to avoid scrolling.
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

    // Gives the focus to a row.
    signal handed(place: int, reason: int)
    // A screen was chosen with the pointer, so the focus belongs to it.
    signal entered

    // Arrow keys treat the rows of both lists as one column.
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

        // Space for the focus rings of the first and last row.
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
                    onEntered: bar.entered()
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
                onEntered: bar.entered()
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
