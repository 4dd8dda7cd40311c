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

    dark: Theme.isDark
    accent: Theme.accent
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

    BubbleTipCard {
        tip: chart.tip
    }
}
