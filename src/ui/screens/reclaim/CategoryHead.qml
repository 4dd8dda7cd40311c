// SPDX-License-Identifier: MIT
// How many categories are selected, and the menu that selects several at once.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Item {
    id: head

    required property CategoryList categories

    implicitHeight: Math.max(40, button.implicitHeight + 8)

    Label {
        id: label

        x: 26
        anchors.verticalCenter: parent.verticalCenter
        text: qsTr("Select:")
        size: 11
        soft: true
    }

    MenuButton {
        id: button

        objectName: "selectMenu"
        anchors.left: label.right
        anchors.leftMargin: 4
        anchors.verticalCenter: parent.verticalCenter
        text: head.categories.menuLabel
        said: qsTr("Select:")

        MenuRow {
            text: qsTr("All")
            onTriggered: head.categories.chooseAll()
        }
        MenuRow {
            text: qsTr("Safe only")
            onTriggered: head.categories.chooseSafe()
        }
        MenuRow {
            text: qsTr("None")
            onTriggered: head.categories.chooseNone()
        }
    }
}
