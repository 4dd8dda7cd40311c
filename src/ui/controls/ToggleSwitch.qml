// SPDX-License-Identifier: MIT
// A switch with its label before it.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

T.Switch {
    id: toggle

    required text
    // Whether the label is drawn; it is the accessible name in any case.
    property bool labelled: true
    property real size: 12
    property bool soft: false

    // The label reserves the indicator's space as padding.
    implicitWidth: (toggle.labelled ? implicitContentWidth : indicator.implicitWidth) + leftPadding + rightPadding
    implicitHeight: Math.max(indicator.implicitHeight, toggle.labelled ? implicitContentHeight : 0) + topPadding + bottomPadding
    spacing: 12
    verticalPadding: 4
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    opacity: toggle.enabled ? 1 : 0.45

    Accessible.name: toggle.text
    Accessible.checkable: true
    Accessible.checked: toggle.checked
    Accessible.onPressAction: toggle.flip(false)
    Accessible.onToggleAction: toggle.flip(false)

    // Toggles like a click. Auto-repeat of a held key is ignored.
    function flip(again: bool) {
        if (again || !toggle.enabled)
            return;
        toggle.toggle();
        toggle.toggled();
        toggle.clicked();
    }

    Keys.onSpacePressed: event => event.accepted = event.isAutoRepeat
    Keys.onReleased: event => event.accepted = event.isAutoRepeat
    Keys.onReturnPressed: event => toggle.flip(event.isAutoRepeat)
    Keys.onEnterPressed: event => toggle.flip(event.isAutoRepeat)

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }

    indicator: Rectangle {
        x: ReadingDirection.mirrored ? toggle.leftPadding : toggle.width - width - toggle.rightPadding
        y: Math.round((toggle.height - height) / 2)
        implicitWidth: 34
        implicitHeight: 20
        radius: height / 2
        color: toggle.checked ? Theme.accent : Theme.surfaceHi
        border.width: toggle.checked ? 0 : 1
        border.color: toggle.hovered ? Theme.inkSoft : Qt.alpha(Theme.inkSoft, 0.6)
        Behavior on color {
            QuickChange {}
        }

        Rectangle {
            anchors.fill: parent
            radius: height / 2
            color: toggle.down ? Theme.pressWash : toggle.hovered && toggle.enabled ? Theme.hoverWash : "transparent"
        }

        Rectangle {
            readonly property real inset: 3

            x: toggle.checked !== ReadingDirection.mirrored ? parent.width - width - inset : inset
            anchors.verticalCenter: parent.verticalCenter
            width: 14
            height: 14
            radius: 7
            color: toggle.checked ? "white" : Theme.inkSoft
            Behavior on x {
                NumberAnimation {
                    duration: Motion.quick
                    easing.type: Easing.OutCubic
                }
            }
        }

        FocusRing {
            shown: toggle.visualFocus
            corner: parent.height / 2
        }
    }

    contentItem: Label {
        readonly property real room: toggle.indicator.width + toggle.spacing

        leftPadding: ReadingDirection.mirrored ? room : 0
        rightPadding: ReadingDirection.mirrored ? 0 : room
        text: toggle.text
        size: toggle.size
        soft: toggle.soft
        mute: true
        visible: toggle.labelled
        verticalAlignment: Text.AlignVCenter
    }
}
