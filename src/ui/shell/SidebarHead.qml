// SPDX-License-Identifier: MIT
// The application's mark and name, and the button that collapses the sidebar. When collapsed, the button is below the
// mark.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Item {
    id: head

    required property SidebarModel sidebar
    required property bool tight

    implicitHeight: head.sidebar.collapsed ? collapse.y + collapse.height + 8 : Math.max(mark.y + mark.height, name.implicitHeight) + (head.tight ? 12 : 20)

    HouseMark {
        id: mark

        x: head.sidebar.collapsed ? 16 : 20
        y: head.tight ? 14 : 22
        width: 28
        height: 28
        Behavior on x {
            NumberAnimation {
                duration: Motion.gentle
                easing.type: Easing.OutCubic
            }
        }
    }

    Label {
        id: name

        anchors.left: mark.right
        anchors.leftMargin: 10
        anchors.right: collapse.left
        anchors.verticalCenter: mark.verticalCenter
        text: "Zelk"
        size: 17
        font.weight: Font.DemiBold
        visible: !head.sidebar.collapsed
    }

    IconButton {
        id: collapse

        objectName: "collapseButton"
        x: head.sidebar.collapsed ? (head.width - width) / 2 : head.width - width - 12
        y: head.sidebar.collapsed ? mark.y + mark.height + 8 : mark.y + (mark.height - height) / 2
        symbol: "sidebar.left"
        text: head.sidebar.collapsed ? qsTr("Expand sidebar") : qsTr("Collapse sidebar")
        help: text
        onClicked: head.sidebar.toggleCollapsed()
    }
}
