// SPDX-License-Identifier: MIT
// A local snapshot: what it is, when it was made, whether it may go, and the button that deletes it.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Item {
    id: row

    required property int index
    required property string kind
    required property string note
    required property string date
    required property bool purgeable
    required property string tag
    required property string spoken
    required property string deleteName
    property bool resting: false

    signal pressed(bool byKey)

    implicitHeight: Math.max(texts.implicitHeight, deleteButton.implicitHeight) + 2 * 10

    Accessible.role: Accessible.ListItem
    Accessible.name: row.spoken

    Divider {
        width: parent.width
        visible: row.index > 0
    }

    Column {
        id: texts

        anchors.left: parent.left
        anchors.right: stateTag.left
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        Label {
            width: parent.width
            text: row.kind
            size: 13
            font.weight: Font.Medium
            mute: true
        }

        Label {
            width: parent.width
            text: row.note
            visible: text !== ""
            size: 11
            elide: Text.ElideMiddle
            mute: true
        }

        Label {
            width: parent.width
            text: row.date
            size: 11
            soft: true
            mute: true
        }
    }

    Tag {
        id: stateTag

        anchors.right: deleteButton.left
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        text: row.tag
        mute: true
        ink: row.purgeable ? Theme.gradeSafe : Theme.inkSoft
    }

    Button {
        id: deleteButton

        objectName: "deleteSnapshot" + row.index
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: qsTr("delete")
        Accessible.name: row.deleteName
        enabled: row.purgeable && !row.resting
        opacity: enabled ? 1 : 0.4
        onClicked: row.pressed(deleteButton.visualFocus)
    }
}
