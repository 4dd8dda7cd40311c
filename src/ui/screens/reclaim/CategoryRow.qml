// SPDX-License-Identifier: MIT
// A category: check box, grade, name and size.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

ListRow {
    id: row

    required property int index
    required property string name
    required property string note
    required property color tint
    required property real bytes
    required property string itemCount
    required property bool chosen
    required property string spoken

    signal pressed(int row)

    implicitHeight: Math.max(texts.implicitHeight, figures.implicitHeight) + 2 * 10

    Accessible.role: Accessible.CheckBox
    Accessible.name: row.spoken
    Accessible.checkable: true
    Accessible.checked: row.chosen
    Accessible.onPressAction: row.pressed(row.index)
    Accessible.onToggleAction: row.pressed(row.index)

    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 12
        anchors.topMargin: 1
        anchors.bottomMargin: 1
        radius: 10
        color: row.chosen ? Qt.alpha(Theme.accent, 0.1) : hover.hovered ? Theme.hoverWash : "transparent"

        FocusRing {
            shown: row.ringed
            corner: 10
        }
    }

    HoverHandler {
        id: hover

        cursorShape: Qt.PointingHandCursor
    }

    TapHandler {
        onTapped: row.pressed(row.index)
    }

    CheckBox {
        id: box

        x: 18
        anchors.verticalCenter: parent.verticalCenter
        text: row.name
        on: row.chosen
        focusPolicy: Qt.NoFocus
        Accessible.ignored: true
        onClicked: row.pressed(row.index)
    }

    Rectangle {
        id: dot

        anchors.left: box.right
        anchors.leftMargin: 6
        anchors.verticalCenter: parent.verticalCenter
        width: 8
        height: 8
        radius: 4
        color: row.tint
    }

    Column {
        id: texts

        anchors.left: dot.right
        anchors.leftMargin: 10
        anchors.right: figures.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        Label {
            width: parent.width
            text: row.name
            size: 13
            font.weight: Font.DemiBold
            wrapMode: Text.WordWrap
            mute: true
        }

        Label {
            width: parent.width
            text: row.note
            size: 11
            soft: true
            wrapMode: Text.WordWrap
            mute: true
        }
    }

    Column {
        id: figures

        anchors.right: parent.right
        anchors.rightMargin: 24
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        AnimatedNumber {
            anchors.right: parent.right
            value: row.bytes
            pixelSize: 12
            bold: true
            mute: true
        }

        Label {
            anchors.right: parent.right
            text: row.itemCount
            size: 10
            soft: true
            mute: true
        }
    }
}
