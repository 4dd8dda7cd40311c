// SPDX-License-Identifier: MIT
// A background item: tick, icon, name and path, and for one that stays what it is. A click ticks it.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

ListRow {
    id: row

    required property int index
    required property string label
    required property string place
    required property var icon
    required property bool removable
    required property bool ticked
    required property string note
    required property string mark
    required property string reason
    required spoken

    clickable: row.removable
    implicitHeight: Math.max(box.implicitHeight, texts.implicitHeight) + 2 * 8

    // A box that nothing can tick is none for a screen reader.
    Accessible.role: row.removable ? Accessible.CheckBox : Accessible.ListItem
    Accessible.checkable: row.removable
    Accessible.checked: row.ticked
    Accessible.description: row.reason
    Accessible.onPressAction: row.pressed()
    Accessible.onToggleAction: row.pressed()

    Rectangle {
        id: ground

        anchors.fill: parent
        anchors.leftMargin: 16
        anchors.rightMargin: 16
        anchors.topMargin: 1
        anchors.bottomMargin: 1
        radius: 10
        color: row.ticked ? Qt.alpha(Theme.accent, 0.1) : row.hovered && row.removable ? Theme.hoverWash : "transparent"

        FocusRing {
            anchors.margins: 0
            shown: row.ringed
            corner: ground.radius
        }
    }

    CheckBox {
        id: box

        objectName: "agentTick" + row.index
        anchors.left: parent.left
        anchors.leftMargin: 22
        anchors.verticalCenter: parent.verticalCenter
        text: row.label
        on: row.ticked
        enabled: row.removable
        focusPolicy: Qt.NoFocus
        Accessible.ignored: true
        onClicked: row.pressed()
    }

    Picture {
        id: picture

        anchors.left: box.right
        anchors.leftMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        width: 22
        height: 22
        image: row.icon
    }

    TwoLines {
        id: texts

        anchors.left: picture.right
        anchors.leftMargin: 12
        anchors.right: marks.left
        anchors.rightMargin: marks.visible ? 16 : 0
        anchors.verticalCenter: parent.verticalCenter
        title: row.label
        note: row.place
        noteSize: 10
        weight: Font.Medium
        elide: Text.ElideMiddle
        mute: true
    }

    Row {
        id: marks

        anchors.right: parent.right
        anchors.rightMargin: Theme.pageMargin
        anchors.verticalCenter: parent.verticalCenter
        visible: !row.removable
        width: visible ? implicitWidth : 0
        spacing: 8

        Label {
            anchors.verticalCenter: parent.verticalCenter
            visible: text !== ""
            text: row.note
            size: 10
            soft: true
            mute: true
        }

        Tag {
            anchors.verticalCenter: parent.verticalCenter
            visible: text !== ""
            text: row.mark
            mute: true
            ink: Theme.inkSoft
            tint: 0.14
            size: 10
        }
    }
}
