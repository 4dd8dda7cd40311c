// SPDX-License-Identifier: MIT
// The usage of a drive as a segmented bar with a legend.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Charts
import Zelk.Controls

Column {
    id: ribbon

    property alias segments: bar.segments
    property alias freeBytes: bar.freeBytes

    spacing: 14

    RibbonPicture {
        id: bar

        width: parent.width
        height: 22
        otherColor: Theme.otherFiles
        freeColor: Theme.hairline
    }

    FlowRow {
        width: parent.width
        spacing: 16

        Repeater {
            model: ribbon.segments

            Row {
                id: entry

                required property ribbonSegment modelData

                spacing: 8

                Rectangle {
                    anchors.verticalCenter: parent.verticalCenter
                    width: 9
                    height: 9
                    radius: 2
                    color: entry.modelData.color.valid ? entry.modelData.color : Theme.otherFiles
                }

                Label {
                    text: entry.modelData.label
                    size: 11
                }

                Label {
                    text: entry.modelData.bytesText
                    size: 11
                    soft: true
                }
            }
        }
    }
}
