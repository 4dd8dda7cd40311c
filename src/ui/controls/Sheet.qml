// SPDX-License-Identifier: MIT
// A dialog over the window. Who shows it decides when it goes: Escape only says `dismissed`. The keyboard stays inside
// while it is there, and afterwards is where it was. Its one child is as wide as the sheet, and at least as high.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

T.Popup {
    id: sheet

    required property string title
    // What Enter presses, wherever the keyboard is.
    property T.AbstractButton primary: null
    property bool closable: true
    property real sheetWidth: 460
    // 0: as high as the content.
    property real sheetHeight: 0
    default property Item body: null

    signal dismissed

    // What had the keyboard before, and whether it showed it.
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
        // The content is the dialog; the template's item around it would be another one.
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
        NumberAnimation {
            property: "opacity"
            from: 0
            to: 1
            duration: Motion.quick
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

    background: Rectangle {
        radius: 18
        color: Theme.groundHi
        border.width: 1
        border.color: Theme.hairline
    }

    contentItem: SheetBody {
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
}
