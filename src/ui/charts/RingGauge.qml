// SPDX-License-Identifier: MIT
// A ring gauge with a number and a caption inside and a detail line below.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Charts
import Zelk.Controls

Column {
    id: gauge

    // 0 (empty) to 1 (full).
    required property real value
    // The number inside: a percentage, unless it is said to be something else.
    required property real center
    property alias format: figure.format
    required property string caption
    required property color color
    required property string detail

    spacing: 8

    RingPicture {
        anchors.horizontalCenter: parent.horizontalCenter
        width: 108
        height: 108
        value: gauge.value
        color: gauge.color
        track: Theme.hairline
        still: Motion.reduced

        Column {
            id: inside

            // Texts too large for the ring are scaled down.
            readonly property real room: 80

            anchors.centerIn: parent
            scale: Math.min(1, inside.room / Math.max(figure.implicitWidth, name.implicitWidth, 1))

            AnimatedNumber {
                id: figure

                anchors.horizontalCenter: parent.horizontalCenter
                value: gauge.center
                format: NumberItem.Percent
                pixelSize: 22
            }

            Label {
                id: name

                anchors.horizontalCenter: parent.horizontalCenter
                text: gauge.caption
                size: 10
                soft: true
            }
        }
    }

    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(implicitWidth, Math.max(gauge.width, 108))
        text: gauge.detail
        size: 10
        soft: true
        visible: gauge.detail !== ""
    }
}
