// SPDX-License-Identifier: MIT
// The content of a Sheet: scrolls the body if it is too high, and handles Escape, Return and Enter.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

DialogScope {
    id: page

    required property Item body
    required property real bodyWidth
    required property T.AbstractButton primary
    // Moves the scroll bar into the sheet's padding, off the content.
    required property real barMargin

    signal escaped

    focus: true
    Accessible.role: Accessible.Dialog

    Keys.onEscapePressed: page.escaped()
    Keys.onReturnPressed: event => page.press(event.isAutoRepeat)
    Keys.onEnterPressed: event => page.press(event.isAutoRepeat)

    function press(again: bool) {
        if (!again && page.primary?.enabled)
            page.primary.clicked();
    }

    ScrollArea {
        anchors.fill: parent
        anchors.rightMargin: page.barMargin
        contentHeight: holder.height

        Item {
            id: holder

            width: page.bodyWidth
            height: Math.max(page.height, page.body?.implicitHeight ?? 0)
        }
    }

    Binding {
        target: page.body
        property: "parent"
        value: holder
    }
    Binding {
        target: page.body
        property: "width"
        value: holder.width
    }
    Binding {
        target: page.body
        property: "height"
        value: holder.height
    }
}
