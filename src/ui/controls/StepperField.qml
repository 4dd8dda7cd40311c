// SPDX-License-Identifier: MIT
// A spin box with its label before it.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

T.SpinBox {
    id: stepper

    required property string label
    // The displayed value, for formats with a unit.
    property string valueText: stepper.displayText
    property real size: 12

    signal moved(int value)

    // Measured by the content item. It has no id, because an id would disable its deferred creation.
    property real nameWidth: 0
    property real numberWidth: 0

    readonly property int corner: 8
    readonly property real buttonSide: Math.round(26 * TextScale.factor)
    readonly property real boxWidth: 2 * stepper.buttonSide + Math.max(36 * TextScale.factor, stepper.numberWidth + 16)

    implicitWidth: Math.ceil(stepper.nameWidth + 12 + stepper.boxWidth)
    implicitHeight: Math.max(stepper.buttonSide + 4, implicitContentHeight)
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    opacity: stepper.enabled ? 1 : 0.45

    // Qt's accessibility reads the range from properties with these names.
    readonly property int minimumValue: stepper.from
    readonly property int maximumValue: stepper.to

    // Suppresses `moved` for initial values. It follows `value`, which assistive technology sets directly.
    property bool made: false

    Accessible.name: stepper.label
    onValueChanged: {
        if (stepper.made)
            stepper.moved(stepper.value);
    }
    // The template puts the content item into the focus chain, where it has neither keys nor a name.
    Component.onCompleted: {
        contentItem.activeFocusOnTab = false;
        stepper.made = true;
    }

    component StepFace: Item {
        id: stepButton

        required property string symbol
        required property bool down
        required property bool hovered

        // Dimmed at the end of the range.
        opacity: stepButton.enabled ? 1 : 0.35

        Rectangle {
            anchors.fill: parent
            anchors.margins: 2
            radius: 6
            color: stepButton.down ? Theme.pressWash : stepButton.hovered && stepButton.enabled ? Theme.hoverWash : "transparent"
        }

        SymbolItem {
            anchors.centerIn: parent
            name: stepButton.symbol
            color: Theme.ink
            size: Math.round(10 * TextScale.factor)
        }
    }

    down.indicator: StepFace {
        x: ReadingDirection.mirrored ? stepper.boxWidth - width : stepper.width - stepper.boxWidth
        y: Math.round((stepper.height - height) / 2)
        width: stepper.buttonSide
        height: stepper.buttonSide
        enabled: stepper.value > stepper.from
        symbol: "minus"
        down: stepper.down.pressed
        hovered: stepper.down.hovered
    }

    up.indicator: StepFace {
        x: ReadingDirection.mirrored ? 0 : stepper.width - width
        y: Math.round((stepper.height - height) / 2)
        width: stepper.buttonSide
        height: stepper.buttonSide
        enabled: stepper.value < stepper.to
        symbol: "plus"
        down: stepper.up.pressed
        hovered: stepper.up.hovered
    }

    background: Item {
        Rectangle {
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: stepper.boxWidth
            height: stepper.buttonSide
            radius: stepper.corner
            color: Theme.surfaceHi
            border.width: 1
            border.color: Theme.hairline

            FocusRing {
                shown: stepper.visualFocus
                corner: stepper.corner
            }
        }
    }

    contentItem: Face {
        label: stepper.label
        number: stepper.valueText
        size: stepper.size
        boxWidth: stepper.boxWidth
        onNameWidthChanged: stepper.nameWidth = nameWidth
        onNumberWidthChanged: stepper.numberWidth = numberWidth
    }

    // The label, and after it the value centred in its box.
    component Face: Item {
        id: face

        required property string label
        required property string number
        required property real size
        required property real boxWidth

        readonly property real nameWidth: nameLabel.implicitWidth
        readonly property real numberWidth: numberLabel.implicitWidth

        implicitHeight: Math.max(nameLabel.implicitHeight, numberLabel.implicitHeight)

        Label {
            id: nameLabel

            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, Math.max(0, face.width - face.boxWidth - 12))
            text: face.label
            size: face.size
            wrapMode: Text.Wrap
            elide: Text.ElideNone
            mute: true
        }

        Label {
            id: numberLabel

            anchors.right: parent.right
            anchors.rightMargin: (face.boxWidth - width) / 2
            anchors.verticalCenter: parent.verticalCenter
            text: face.number
            size: face.size
            font.weight: Font.Medium
            mute: true
        }
    }
}
