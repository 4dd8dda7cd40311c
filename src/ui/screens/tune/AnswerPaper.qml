// SPDX-License-Identifier: MIT
// The text of an answer, as a node of its own for screen readers, which may remember the role that a node has had.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Item {
    id: paper

    required property string words
    // Whether it is announced when it appears.
    required property bool announced

    implicitHeight: Math.min(lines.implicitHeight, Math.round(180 * TextScale.factor))

    Accessible.role: paper.announced ? Accessible.AlertMessage : Accessible.Paragraph
    Accessible.name: paper.words

    ScrollArea {
        id: area

        objectName: "tuneOutput"
        anchors.fill: parent
        // Of the loader: where the keyboard was in an answer, it is in the next one.
        focus: true
        contentHeight: lines.implicitHeight
        activeFocusOnTab: area.end > 0

        Accessible.role: Accessible.Document
        Accessible.name: qsTr("Result")
        Accessible.description: paper.words

        Keys.onUpPressed: area.scrollTo(area.contentY - 40)
        Keys.onDownPressed: area.scrollTo(area.contentY + 40)

        PrintedText {
            id: lines

            anchors.left: parent.left
            width: area.width - 16
            text: paper.words
            size: 11
            wrapMode: Text.WrapAnywhere
            mute: true
        }
    }

    FocusRing {
        shown: area.activeFocus
        corner: 6
    }
}
