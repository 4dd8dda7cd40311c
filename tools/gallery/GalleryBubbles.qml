// SPDX-License-Identifier: MIT
// Bubble maps: files and folders, and plain ones that are all there is to see of them in a small room.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Bubbles

Row {
    id: maps

    required property BubbleModel model
    required property BubbleModel plain

    height: 460
    spacing: 24

    BubbleChart {
        objectName: "bubbles"
        width: parent.width * 0.64
        height: parent.height
        model: maps.model
        name: "Folders"
    }

    BubbleChart {
        objectName: "plainBubbles"
        width: parent.width * 0.36 - parent.spacing
        height: parent.height
        model: maps.plain
        name: "Kinds"
    }
}
