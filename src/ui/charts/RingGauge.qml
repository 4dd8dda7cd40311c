// SPDX-License-Identifier: MIT
// A ring gauge with a number and a caption inside and a detail line below. For screen readers it is one thing whose name
// stays the same while its number changes, so that they tell the number only to those who ask.
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

    Accessible.role: Accessible.Graphic
    Accessible.name: gauge.caption
    Accessible.description: AccessibleText.joined([figure.text, gauge.detail])

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
                interval: Motion.readable
                mute: true
                Accessible.name: ""
            }

            Label {
                id: name

                anchors.horizontalCenter: parent.horizontalCenter
                text: gauge.caption
                size: 10
                soft: true
                mute: true
                Accessible.name: ""
            }
        }
    }

    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(implicitWidth, Math.max(gauge.width, 108))
        text: gauge.detail
        size: 10
        soft: true
        mute: true
        Accessible.name: ""
        visible: gauge.detail !== ""
    }
}
