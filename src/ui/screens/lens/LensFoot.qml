// SPDX-License-Identifier: MIT
// The drive's usage, the selected size, and the remove button.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Rectangle {
    id: foot

    required property LensScreenModel lens

    // Emitted before the button is disabled.
    signal removing(bool byKey)

    implicitHeight: Math.max(volume.implicitHeight, caption.implicitHeight, remove.implicitHeight) + 2 * 16
    color: Theme.groundHi

    Divider {
        anchors.left: parent.left
        anchors.right: parent.right
    }

    Column {
        id: volume

        anchors.left: parent.left
        anchors.leftMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4
        visible: foot.lens.volumed

        Label {
            objectName: "lensVolume"
            text: foot.lens.volumeLine
            size: 11
            soft: true
        }

        Rectangle {
            width: 220
            height: 6
            radius: 3
            color: Theme.hairline

            AccentFill {
                objectName: "lensVolumeBar"
                width: parent.width * foot.lens.usedShare
                height: parent.height
                corner: 3
            }
        }
    }

    Label {
        id: caption

        objectName: "lensCaption"
        anchors.left: volume.visible ? volume.right : parent.left
        anchors.leftMargin: 16
        anchors.right: remove.left
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        text: foot.lens.caption
        size: 12
        soft: true
        horizontalAlignment: Text.AlignRight
        wrapMode: Text.Wrap
    }

    RemoveButton {
        id: remove

        objectName: "lensRemove"
        anchors.right: parent.right
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        text: qsTr("Review and Remove")
        enabled: foot.lens.removable
        onClicked: {
            foot.removing(remove.visualFocus);
            foot.lens.removeSelected();
        }
    }
}
