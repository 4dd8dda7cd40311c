// SPDX-License-Identifier: MIT
// A row of a duplicate set, which draws its part of the set's card: the head with what is gained and the button that
// keeps the first file, or a path with its tag and the button that shows the file.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

ListRow {
    id: row

    required property int index
    required property bool head
    required property bool last
    required property string text
    required property string gain
    required property string tag
    required property color tint
    required property string note
    required property string action
    required spoken

    // The colour of the head's symbol.
    required property color tile
    // The least width of the tag.
    required property real tagWidth

    signal acted

    // Between two cards.
    readonly property real gap: row.head ? 12 : 0
    // At the end of a card.
    readonly property real foot: row.last ? 8 : 0

    implicitHeight: row.gap + row.foot + (row.head ? Math.max(34, texts.implicitHeight, keepFirst.implicitHeight) + 2 * 12 : Math.max(label.implicitHeight, mark.implicitHeight, reveal.implicitHeight) + 2 * 1)

    Accessible.onPressAction: row.acted()

    // The part of the card that lies in this row: its outline continues in the rows above and below.
    Item {
        anchors.fill: parent
        anchors.topMargin: row.gap
        clip: true

        Rectangle {
            id: card

            readonly property real hidden: 2 * radius

            anchors.fill: parent
            anchors.leftMargin: Theme.pageMargin
            anchors.rightMargin: Theme.pageMargin
            anchors.topMargin: row.head ? 0 : -card.hidden
            anchors.bottomMargin: row.last ? 0 : -card.hidden
            radius: 16
            color: Theme.surface
            border.width: 1
            border.color: Theme.hairline
        }
    }

    Rectangle {
        id: ground

        anchors.fill: parent
        anchors.topMargin: row.gap + (row.head ? 5 : 0)
        anchors.bottomMargin: row.foot + (row.head ? 5 : 0)
        anchors.leftMargin: Theme.pageMargin + 6
        anchors.rightMargin: Theme.pageMargin + 6
        radius: 10
        color: row.hovered && !row.head ? Theme.hoverWash : "transparent"

        FocusRing {
            anchors.margins: 0
            shown: row.ringed
            corner: ground.radius
        }
    }

    Tile {
        id: picture

        anchors.left: ground.left
        anchors.leftMargin: 10
        anchors.verticalCenter: ground.verticalCenter
        visible: row.head
        symbol: "doc.on.doc.fill"
        tint: row.tile
        side: 34
        symbolSize: 16
    }

    Column {
        id: texts

        anchors.left: picture.right
        anchors.leftMargin: 12
        anchors.right: keepFirst.left
        anchors.rightMargin: 16
        anchors.verticalCenter: ground.verticalCenter
        visible: row.head
        spacing: 2

        Label {
            width: parent.width
            text: row.head ? row.text : ""
            size: 14
            font.weight: Font.DemiBold
            wrapMode: Text.Wrap
            mute: true
        }

        Label {
            width: parent.width
            text: row.gain
            size: 12
            color: Theme.accentText
            font.weight: Font.Medium
            wrapMode: Text.Wrap
            mute: true
        }
    }

    Button {
        id: keepFirst

        objectName: "keepFirst" + row.index
        anchors.right: ground.right
        anchors.rightMargin: 10
        anchors.verticalCenter: ground.verticalCenter
        visible: row.head
        text: qsTr("Keep first, trash rest")
        Accessible.name: row.action
        focusPolicy: Qt.NoFocus
        onClicked: row.acted()
        // With a handler of its own, the second click of a double click is no click: the next set has moved under the
        // pointer by then.
        onDoubleClicked: {}
    }

    PathTag {
        id: mark

        anchors.left: ground.left
        anchors.leftMargin: 10
        anchors.verticalCenter: ground.verticalCenter
        width: row.tagWidth
        visible: !row.head
        text: row.tag
        ink: row.tint.valid ? row.tint : Theme.inkSoft
    }

    Label {
        id: label

        anchors.left: mark.right
        anchors.leftMargin: 12
        anchors.right: remark.left
        anchors.rightMargin: remark.visible ? 12 : 0
        anchors.verticalCenter: ground.verticalCenter
        visible: !row.head
        text: row.head ? "" : row.text
        size: 12
        elide: Text.ElideMiddle
        mute: true
    }

    Label {
        id: remark

        anchors.right: reveal.left
        anchors.rightMargin: 8
        anchors.verticalCenter: ground.verticalCenter
        visible: text !== ""
        text: row.note
        size: 10
        soft: true
        mute: true
    }

    IconButton {
        id: reveal

        objectName: "revealCopy" + row.index
        anchors.right: ground.right
        anchors.rightMargin: 6
        anchors.verticalCenter: ground.verticalCenter
        visible: !row.head
        symbol: "magnifyingglass"
        size: 13
        side: 28
        text: row.action
        help: SystemTexts.of(SystemTexts.RevealFile)
        focusPolicy: Qt.NoFocus
        onClicked: row.acted()
    }
}
