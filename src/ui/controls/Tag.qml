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
    property real size: 11
    // Hides the text from screen readers, where the row around it has it in its name.
    property bool mute: false

    implicitWidth: word.implicitWidth + 2 * 8
    implicitHeight: word.implicitHeight + 2 * 3
    radius: 6
    color: Qt.alpha(tag.ink, tag.tint)

    Label {
        id: word

        anchors.centerIn: parent
        text: tag.text
        size: tag.size
        mute: tag.mute
        color: Theme.textOn(tag.ink, Qt.tint(Theme.textGround, tag.color))
    }
}
