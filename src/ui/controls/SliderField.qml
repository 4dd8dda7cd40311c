// SPDX-License-Identifier: MIT
// A slider with pointer, wheel, arrow key and page key input.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

T.Slider {
    id: slider

    // The accessible name, and the value as text.
    required property string label
    required property string valueText

    implicitWidth: 240
    implicitHeight: 28
    focusPolicy: Qt.StrongFocus
    snapMode: T.Slider.SnapAlways
    hoverEnabled: true
    wheelEnabled: true
    opacity: slider.enabled ? 1 : 0.45

    // Qt's accessibility reads the range from properties with these names.
    readonly property real minimumValue: slider.from
    readonly property real maximumValue: slider.to

    // Unlike `moved`, also emitted when assistive technology changes the value.
    signal picked(real value)

    property bool made: false
    property bool paging: false

    Component.onCompleted: slider.made = true
    onValueChanged: {
        if (slider.made && !slider.paging)
            slider.picked(slider.value);
    }

    // A tenth of the range. Moves there in single steps, since assigning the value would break its binding, and reports
    // only the last one.
    function turnPage(up: bool) {
        const before = slider.value;
        const step = slider.stepSize > 0 ? slider.stepSize : 0.1;
        slider.paging = true;
        for (let left = Math.max(1, Math.round((slider.to - slider.from) / 10 / step)); left > 0; --left) {
            if (up)
                slider.increase();
            else
                slider.decrease();
        }
        slider.paging = false;
        if (slider.value !== before)
            slider.picked(slider.value);
    }

    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_PageUp || event.key === Qt.Key_PageDown;
        if (event.accepted)
            slider.turnPage(event.key === Qt.Key_PageUp);
    }

    Accessible.name: slider.label
    Accessible.description: slider.valueText

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }

    background: Item {
        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            x: slider.leftPadding
            width: slider.availableWidth
            height: 4
            radius: 2
            color: Theme.surfaceHi
            border.width: 1
            border.color: Theme.hairline

            Rectangle {
                anchors.left: parent.left
                width: slider.position * parent.width
                height: parent.height
                radius: 2
                color: Theme.accent
            }
        }
    }

    handle: Rectangle {
        x: slider.leftPadding + slider.visualPosition * (slider.availableWidth - width)
        y: slider.topPadding + (slider.availableHeight - height) / 2
        implicitWidth: 18
        implicitHeight: 18
        radius: 9
        color: slider.pressed || slider.hovered ? Theme.accentSoft : Theme.accent
        border.width: 2
        border.color: Theme.ground

        FocusRing {
            shown: slider.visualFocus
            corner: 9
        }
    }
}
