// SPDX-License-Identifier: MIT
// A modal dialog over the window. It does not close itself: Escape emits `dismissed`. The focus stays inside while it
// is open and returns to the previous item afterwards. Its only child is as wide as the sheet and at least as high.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

T.Popup {
    id: sheet

    required property string title
    // The button that Return and Enter click, wherever the focus is.
    property T.AbstractButton primary: null
    property bool closable: true
    property real sheetWidth: 460
    // 0 follows the content.
    property real sheetHeight: 0
    default property Item body: null

    signal dismissed

    // The item that had the focus before, and whether its focus was visible.
    property Item before: null
    property bool ringed: false

    readonly property real edge: 24
    readonly property real wanted: sheet.sheetHeight > 0 ? sheet.sheetHeight : (body?.implicitHeight ?? 0) + topPadding + bottomPadding

    parent: T.Overlay.overlay
    x: Math.round(((parent?.width ?? 0) - width) / 2)
    y: Math.round(((parent?.height ?? 0) - height) / 2)
    width: Math.min(sheet.sheetWidth, (parent?.width ?? 0) - 2 * sheet.edge)
    height: Math.min(sheet.wanted, (parent?.height ?? 0) - 2 * sheet.edge)
    padding: 24
    modal: true
    dim: true
    focus: true
    closePolicy: T.Popup.NoAutoClose

    onAboutToShow: {
        // The body has the dialog role; the template's popup item would be a second dialog.
        contentItem.parent.Accessible.ignored = true;
        sheet.before = sheet.parent?.Window.activeFocusItem ?? null;
        sheet.ringed = (sheet.before as T.Control)?.visualFocus ?? false;
    }
    onClosed: {
        if (sheet.before?.visible)
            sheet.before.forceActiveFocus(sheet.ringed ? Qt.TabFocusReason : Qt.PopupFocusReason);
        sheet.before = null;
    }

    enter: Transition {
        QuickChange {
            property: "opacity"
            from: 0
            to: 1
        }
        NumberAnimation {
            property: "scale"
            from: 0.97
            to: 1
            duration: Motion.quick
            easing.type: Easing.OutCubic
        }
    }
    exit: Transition {
        NumberAnimation {
            property: "opacity"
            to: 0
            duration: Motion.quick
        }
    }

    T.Overlay.modal: Rectangle {
        color: Theme.isDark ? "#99000000" : "#59000000"
    }

    background: PanelGround {
        radius: 18
        lift: 36
        color: Theme.groundHi
    }

    contentItem: Body {
        title: sheet.title
        body: sheet.body
        bodyWidth: sheet.availableWidth
        primary: sheet.primary
        barMargin: -sheet.rightPadding / 2
        onEscaped: {
            if (sheet.closable)
                sheet.dismissed();
        }
    }

    // Scrolls the content if it is too high, and handles Escape, Return and Enter.
    component Body: DialogScope {
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

        // As far into the padding at both sides, so that it cuts no focus ring there.
        ScrollArea {
            anchors.fill: parent
            anchors.leftMargin: page.barMargin
            anchors.rightMargin: page.barMargin
            contentHeight: holder.height

            Item {
                id: holder

                anchors.left: parent.left
                anchors.leftMargin: -page.barMargin
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
}
