// SPDX-License-Identifier: MIT
// The states of BubbleChart.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Charts
import Zelk.Gallery

Section {
    id: section

    required property GalleryModel figures

    title: "BubbleChart: the pointer on a bubble, the keyboard at one, nothing to see"

    Row {
        width: parent.width
        height: 420
        spacing: 24

        readonly property real room: width - 2 * spacing

        BubbleChart {
            objectName: "hovered"
            width: parent.room * 0.5
            height: parent.height
            model: section.figures.bubbles
            name: "Folders"
        }
        BubbleChart {
            objectName: "focused"
            width: parent.room * 0.3
            height: parent.height
            model: section.figures.plainBubbles
            name: "Kinds"
        }
        BubbleChart {
            objectName: "focused"
            width: parent.room * 0.2
            height: parent.height
            model: section.figures.noBubbles
            name: "Nothing"
        }
    }
}
