// SPDX-License-Identifier: MIT
// How much of the drive is in use, as a line and as a bar.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Column {
    id: volume

    required property LensScreenModel lens

    spacing: 4

    Label {
        objectName: "lensVolume"
        anchors.left: parent.left
        text: volume.lens.volumeLine
        size: 11
        soft: true
    }

    Rectangle {
        anchors.left: parent.left
        width: 220
        height: 6
        radius: 3
        color: Theme.hairline

        AccentFill {
            objectName: "lensVolumeBar"
            anchors.left: parent.left
            width: parent.width * volume.lens.usedShare
            height: parent.height
            corner: 3
        }
    }
}
