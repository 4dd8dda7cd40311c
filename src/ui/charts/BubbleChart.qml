// SPDX-License-Identifier: MIT
// The bubble map of a model: one stop in the focus chain, and an accessible list item per bubble with its name, size
// and share.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Charts
import Zelk.Controls

BubblePicture {
    id: chart

    required property string name

    // The motion when the user went into the bubble of a slice, or came back to it. Called before the slices change in
    // the first case, and after that in the second.
    function growOutOf(slice: int, duration: int) {
        chart.moveFrom(chart.zoomInto(slice), duration);
    }
    function shrinkInto(slice: int, duration: int) {
        chart.moveFrom(chart.zoomOutOf(slice), duration);
    }
    function moveFrom(start: bubbleZoom, duration: int) {
        scaling.origin.x = start.origin.x;
        scaling.origin.y = start.origin.y;
        motion.from = start.scale;
        motion.duration = duration;
        motion.restart();
    }

    transform: Scale {
        id: scaling

        yScale: xScale
    }

    NumberAnimation {
        id: motion

        target: scaling
        property: "xScale"
        to: 1
        easing.type: Easing.OutQuad
    }

    dark: Theme.isDark
    ring: Theme.ink
    ground: Theme.ground
    textScale: TextScale.factor

    Accessible.role: Accessible.List
    Accessible.name: chart.name
    Accessible.description: chart.currentName

    Repeater {
        model: chart.nodes

        Item {
            id: node

            required property int index
            required property string name
            required property string note
            required property rect box
            required property bool selected
            required property bool current

            x: node.box.x
            y: node.box.y
            width: node.box.width
            height: node.box.height

            Accessible.role: Accessible.ListItem
            Accessible.name: node.name
            Accessible.description: node.note
            Accessible.selectable: true
            Accessible.selected: node.selected
            Accessible.focusable: true
            Accessible.focused: node.current
            Accessible.onPressAction: chart.tapNode(node.index)
        }
    }

    // Without a current bubble the map itself shows the focus.
    FocusRing {
        anchors.margins: 4
        shown: chart.visualFocus && chart.empty
        corner: 8
    }

    // The tool tip. Transparent to clicks and hidden from screen readers: the bubble's node says the same.
    PanelGround {
        id: card

        readonly property real room: chart.tip.widest - 2 * lines.x

        objectName: "bubbleTip"
        x: ReadingDirection.mirrored ? chart.width - width - chart.tip.corner.x : chart.tip.corner.x
        y: chart.tip.corner.y
        width: lines.width + 2 * lines.x
        height: lines.height + 2 * lines.y
        // It would be scaled with the map.
        visible: chart.tip.shown && !motion.running
        radius: 6
        lift: 10
        color: Qt.alpha(Theme.surfaceHi, 0.94)

        Column {
            id: lines

            x: 8
            y: 8
            spacing: 2

            Label {
                anchors.left: parent.left
                width: Math.min(implicitWidth, card.room)
                text: chart.tip.label
                size: 12
                mute: true
            }

            Label {
                anchors.left: parent.left
                width: Math.min(implicitWidth, card.room)
                text: chart.tip.line
                size: 11
                font.weight: Font.Medium
                font.family: Theme.fixedFont
                color: chart.tip.reclaimable ? Theme.accentText : Theme.ink
                mute: true
            }
        }
    }
}
