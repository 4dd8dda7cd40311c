// SPDX-License-Identifier: MIT
// The remove button: accented while something is selected, else subdued.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

BaseButton {
    id: button

    readonly property real corner: 10

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    horizontalPadding: 18
    verticalPadding: 10

    scale: button.down ? 0.98 : 1
    Behavior on scale {
        NumberAnimation {
            duration: Motion.quick
        }
    }

    background: Rectangle {
        radius: button.corner
        color: Theme.surfaceHi
        border.width: 1
        border.color: Theme.hairline

        AccentFill {
            anchors.fill: parent
            corner: button.corner
            visible: button.enabled
        }

        HoverOverlay {
            anchors.fill: parent
            radius: button.corner
            control: button
        }

        FocusRing {
            shown: button.visualFocus
            corner: button.corner
        }
    }

    contentItem: ShadedText {
        text: button.text
        shaded: button.enabled
    }

    // White text on a soft shadow, because the accent's bright end has too little contrast; without one it is subdued.
    component ShadedText: Item {
        id: shadedText

        required property string text
        required property bool shaded

        implicitWidth: word.implicitWidth
        implicitHeight: word.implicitHeight

        Label {
            id: word

            anchors.centerIn: parent
            width: Math.min(implicitWidth, parent.width)
            text: shadedText.text
            size: 13
            font.weight: Font.Medium
            color: shadedText.shaded ? "white" : Theme.inkSoft
            mute: true

            TextShadow {
                objectName: "removeShadow"
                anchors.fill: parent
                anchors.margins: -reach
                z: -1
                line: word.text
                font: word.font
                visible: shadedText.shaded
            }
        }
    }
}
