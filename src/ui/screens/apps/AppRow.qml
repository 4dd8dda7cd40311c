// SPDX-License-Identifier: MIT
// An application: icon, name, what it is called or takes, how it came here, and its button. One that stays has no button
// and says why.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

ListRow {
    id: row

    required property int index
    required property var icon
    required property string name
    required property string detail
    required property string reason
    required property string kind
    required property string size
    required property bool removable
    required property bool busy
    required property string uninstallName
    required spoken
    // Another application is being removed.
    property bool resting: false

    signal asked

    implicitHeight: Math.max(picture.height, texts.implicitHeight, button.implicitHeight) + 2 * 10

    Accessible.description: row.reason
    Accessible.onPressAction: row.asked()

    Rectangle {
        id: ground

        anchors.fill: parent
        anchors.leftMargin: 16
        anchors.rightMargin: 16
        anchors.topMargin: 1
        anchors.bottomMargin: 1
        radius: 10
        color: row.hovered ? Theme.hoverWash : "transparent"

        FocusRing {
            anchors.margins: 0
            shown: row.ringed
            corner: ground.radius
        }
    }

    Picture {
        id: picture

        anchors.left: parent.left
        anchors.leftMargin: Theme.pageMargin
        anchors.verticalCenter: parent.verticalCenter
        width: 30
        height: 30
        image: row.icon
    }

    Column {
        id: texts

        anchors.left: picture.right
        anchors.leftMargin: 14
        anchors.right: sizeText.left
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        Item {
            width: parent.width
            implicitHeight: Math.max(nameText.implicitHeight, kindTag.visible ? kindTag.implicitHeight : 0)

            Label {
                id: nameText

                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, parent.width - (kindTag.visible ? kindTag.width + 8 : 0))
                text: row.name
                size: 13
                font.weight: Font.Medium
                elide: Text.ElideMiddle
                mute: true
            }

            Tag {
                id: kindTag

                anchors.left: nameText.right
                anchors.leftMargin: 8
                anchors.verticalCenter: parent.verticalCenter
                visible: row.kind !== ""
                text: row.kind
                mute: true
                ink: Theme.inkSoft
                tint: 0.14
                size: 10
            }
        }

        Label {
            width: parent.width
            text: row.detail
            size: 11
            soft: true
            elide: Text.ElideMiddle
            mute: true
        }

        Label {
            width: parent.width
            visible: text !== ""
            text: row.reason
            size: 11
            soft: true
            wrapMode: Text.Wrap
            mute: true
        }
    }

    Label {
        id: sizeText

        anchors.right: endArea.left
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        width: Math.round(86 * TextScale.factor)
        horizontalAlignment: Text.AlignRight
        text: row.size
        size: 13
        font.weight: Font.DemiBold
        mute: true
    }

    // As wide in every row, so that the sizes stand below each other.
    Item {
        id: endArea

        anchors.right: parent.right
        anchors.rightMargin: Theme.pageMargin
        anchors.verticalCenter: parent.verticalCenter
        width: button.implicitWidth
        height: button.implicitHeight

        Button {
            id: button

            objectName: "uninstall" + row.index
            anchors.fill: parent
            visible: row.removable && !row.busy
            enabled: !row.resting
            text: qsTr("Uninstall")
            Accessible.name: row.uninstallName
            focusPolicy: Qt.NoFocus
            onClicked: row.asked()
        }

        Spinner {
            objectName: "uninstalling" + row.index
            anchors.centerIn: parent
            visible: row.busy
        }
    }
}
