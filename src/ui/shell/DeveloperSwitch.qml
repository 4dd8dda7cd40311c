// SPDX-License-Identifier: MIT
// The switch for the developer view. Collapsed, it shows no label.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Item {
    id: place

    required property SidebarModel sidebar
    required property bool tight

    implicitHeight: Math.max(place.tight ? 32 : 40, label.implicitHeight + 12)

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
        visible: !place.sidebar.collapsed
    }

    ToggleSwitch {
        id: toggle

        objectName: "developerSwitch"
        x: place.sidebar.collapsed ? (place.width - width) / 2 : place.width - width - 8
        anchors.verticalCenter: parent.verticalCenter
        text: qsTr("Developer view")
        labelled: false
        checked: place.sidebar.developer
        onToggled: place.sidebar.developer = checked

        HelpTip {
            text: qsTr("Show developer-focused junk and per-item controls in Reclaim")
            control: toggle
        }
    }
}
