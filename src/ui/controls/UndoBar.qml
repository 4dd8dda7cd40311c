// SPDX-License-Identifier: MIT
// A bar at the bottom of a screen that tells how a removal ended, with an Undo button if that can be undone. Takes no
// space while hidden.
// If it is hidden while it has the focus, it emits `gone` so that the screen takes the focus back.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

FocusScope {
    id: bar

    // The model of the removal; null until the screen has a model.
    property UndoBarModel removal: null

    property bool shown: bar.removal?.shown ?? false
    property bool undoable: bar.removal?.undoable ?? false
    property string text: bar.removal?.text ?? ""
    // One reason per line; may be empty.
    property string details: bar.removal?.details ?? ""
    // The accessible name.
    property string spoken: bar.removal?.spoken ?? bar.text

    signal gone(byKey: bool)
    signal dismissed

    // Whether the keyboard used it last.
    property bool byKey: false
    readonly property real buttonRoom: undo.visible ? dot.width + undo.width + 2 * 4 : 0
    readonly property real textRoom: bar.width - texts.anchors.leftMargin - bar.buttonRoom - 16 - close.width - close.anchors.rightMargin

    onShownChanged: {
        if (bar.shown || !bar.focus)
            return;
        bar.focus = false;
        bar.gone(bar.byKey);
    }

    implicitHeight: bar.shown ? Math.max(texts.height, undo.implicitHeight, close.implicitHeight) + 2 * 8 : 0
    visible: bar.shown

    Accessible.role: Accessible.AlertMessage
    Accessible.name: bar.spoken

    Keys.onEscapePressed: bar.dismiss(true)

    function dismiss(withKey: bool) {
        bar.byKey = withKey;
        bar.removal?.dismiss();
        bar.dismissed();
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.surfaceHi
    }

    Divider {
        width: parent.width
    }

    TwoLines {
        id: texts

        anchors.left: parent.left
        anchors.leftMargin: Theme.pageMargin
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(bar.textRoom, texts.wanted)
        title: bar.text
        note: bar.details
        size: 12
        wraps: true
        mute: true
    }

    Label {
        id: dot

        anchors.left: texts.right
        anchors.leftMargin: 4
        anchors.verticalCenter: parent.verticalCenter
        visible: undo.visible
        text: "·"
        size: 12
        soft: true
        mute: true
    }

    Button {
        id: undo

        kind: Button.Link
        objectName: "undoRemoval"
        focus: true
        anchors.left: dot.right
        // Its text is as far from the dot as the one before.
        anchors.leftMargin: 4 - undo.horizontalPadding
        anchors.verticalCenter: parent.verticalCenter
        visible: bar.undoable
        text: qsTr("Undo")
        // The button is about to disappear: keep the focus in the bar.
        onClicked: {
            bar.byKey = undo.visualFocus;
            if (undo.activeFocus)
                close.forceActiveFocus(bar.byKey ? Qt.TabFocusReason : Qt.MouseFocusReason);
            bar.removal?.undo();
        }
    }

    IconButton {
        id: close

        objectName: "closeUndoBar"
        anchors.right: parent.right
        // Its cross ends at the margin.
        anchors.rightMargin: Theme.pageMargin - close.overhang
        anchors.verticalCenter: parent.verticalCenter
        symbol: "xmark"
        size: 12
        side: 26
        text: qsTr("Close")
        onClicked: bar.dismiss(close.visualFocus)
    }
}
