// SPDX-License-Identifier: MIT
// A coloured text on a tint of the same colour, darkened or lightened until it is readable there.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Rectangle {
    id: tag

    required property string text
    required property color ink
    property real tint: 0.2

    implicitWidth: word.implicitWidth + 2 * 8
    implicitHeight: word.implicitHeight + 2 * 3
    radius: 6
    color: Qt.alpha(tag.ink, tag.tint)

    Label {
        id: word

        anchors.centerIn: parent
        text: tag.text
        size: 11
        color: Theme.textOn(tag.ink, Qt.tint(Theme.textGround, tag.color))
    }
}
