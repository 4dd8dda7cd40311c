// SPDX-License-Identifier: MIT
// The application's mark and name, the modules by group, and in the footer the tools, the settings and the developer
// switch. Collapsed, only symbols show.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Charts
import Zelk.Controls

FocusScope {
    id: bar

    required property SidebarModel sidebar

    // Reduces the spacing in a low window to avoid scrolling.
    readonly property bool tight: bar.height < 700
    property Item selectedRow: null

    objectName: "sidebar"
    implicitWidth: bar.sidebar.width
    width: implicitWidth
    clip: true

    Accessible.role: Accessible.PageTabList
    Accessible.name: qsTr("Modules")

    Behavior on implicitWidth {
        GentleChange {}
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

    // The mark, the name and the button that collapses the sidebar, which is then below the mark.
    Item {
        id: head

        anchors.top: parent.top
        width: parent.width
        implicitHeight: bar.sidebar.collapsed ? collapse.y + collapse.height + 8 : Math.max(mark.y + mark.height, brand.implicitHeight) + (bar.tight ? 12 : 20)

        // The application's mark, the same as its icon.
        PaintedLayer {
            id: mark

            kind: PaintedLayer.Tile
            color: Theme.accent
            property real inset: bar.sidebar.collapsed ? 16 : 20

            anchors.left: parent.left
            anchors.leftMargin: mark.inset
            y: bar.tight ? 14 : 22
            width: 28
            height: 28
            Behavior on inset {
                GentleChange {}
            }

            SymbolItem {
                anchors.centerIn: parent
                name: "internaldrive"
                color: Theme.accentInk
                size: 18
            }
        }

        Label {
            id: brand

            anchors.left: mark.right
            anchors.leftMargin: 10
            anchors.right: collapse.left
            anchors.verticalCenter: mark.verticalCenter
            text: "Zelk"
            size: 17
            font.weight: Font.DemiBold
            visible: !bar.sidebar.collapsed
        }

        IconButton {
            id: collapse

            objectName: "collapseButton"
            anchors.right: parent.right
            anchors.rightMargin: bar.sidebar.collapsed ? (head.width - width) / 2 : 12
            y: bar.sidebar.collapsed ? mark.y + mark.height + 8 : mark.y + (mark.height - height) / 2
            symbol: "sidebar.left"
            text: bar.sidebar.collapsed ? qsTr("Expand sidebar") : qsTr("Collapse sidebar")
            help: text
            onClicked: bar.sidebar.toggleCollapsed()
        }
    }

    ScrollArea {
        id: scroll

        // Space for the focus rings of the first and last row.
        readonly property real rim: 4

        anchors.top: head.bottom
        anchors.topMargin: -scroll.rim
        anchors.bottom: footer.top
        anchors.bottomMargin: -scroll.rim
        width: parent.width
        contentHeight: column.implicitHeight + 2 * scroll.rim
        // The text or the window has another size.
        onEndChanged: {
            if (bar.selectedRow)
                scroll.reveal(bar.selectedRow);
        }

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
                    onChosen: row => {
                        bar.selectedRow = row;
                        scroll.reveal(row);
                    }

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

    // Modules go on below the edge.
    Divider {
        anchors.top: footer.top
        width: parent.width
        opacity: scroll.contentY < scroll.end - 1 ? 1 : 0
    }

    Column {
        id: footer

        anchors.bottom: parent.bottom
        width: parent.width
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

        Item {
            id: switchRow

            width: footer.width - 24
            implicitHeight: Math.max(bar.tight ? 32 : 40, label.implicitHeight + 12)

            Label {
                id: label

                anchors.left: parent.left
                anchors.leftMargin: 12
                anchors.right: toggle.left
                anchors.rightMargin: 8
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Developer view")
                size: 12
                soft: true
                mute: true
                visible: !bar.sidebar.collapsed
            }

            ToggleSwitch {
                id: toggle

                objectName: "developerSwitch"
                anchors.right: parent.right
                anchors.rightMargin: bar.sidebar.collapsed ? (switchRow.width - width) / 2 : 8
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Developer view")
                labelled: false
                checked: bar.sidebar.developer
                onToggled: bar.sidebar.developer = checked

                HelpTip {
                    text: qsTr("Show developer-focused junk and per-item controls in Reclaim")
                    control: toggle
                }
            }
        }
    }

    Divider {
        anchors.right: parent.right
        height: parent.height
    }
}
