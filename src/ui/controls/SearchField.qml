// SPDX-License-Identifier: MIT
// A field for the text that a list is searched for. Escape and its button clear it; the screen may give it the focus
// with `find`.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

T.TextField {
    id: field

    // The hint while it is empty, and the accessible name.
    required property string hint
    property real points: 13

    readonly property real corner: 8
    readonly property real symbolSide: Math.round(field.points * TextScale.factor)
    // For the symbol before the text, and for the button after it.
    readonly property real startRoom: 10 + field.symbolSide + 6
    readonly property real endRoom: 10 + cleaner.width

    // The face of every text that names no other.
    FontMetrics {
        id: usual
    }

    // The user changed the text.
    signal searched(string words)

    function find() {
        field.forceActiveFocus(Qt.ShortcutFocusReason);
        field.selectAll();
    }

    function clean() {
        field.clear();
        field.searched("");
    }

    implicitWidth: Math.round(220 * TextScale.factor)
    implicitHeight: Math.ceil(contentHeight) + topPadding + bottomPadding
    leftPadding: ReadingDirection.mirrored ? field.endRoom : field.startRoom
    rightPadding: ReadingDirection.mirrored ? field.startRoom : field.endRoom
    topPadding: 8
    bottomPadding: 8
    verticalAlignment: TextInput.AlignVCenter
    // Set explicitly, as in a label: what is typed stays beside the symbol, whatever its own direction.
    horizontalAlignment: TextInput.AlignLeft
    hoverEnabled: true
    selectByMouse: true
    // A name is typed, not a sentence.
    inputMethodHints: Qt.ImhNoPredictiveText
    color: Theme.ink
    selectionColor: Theme.accent
    selectedTextColor: Theme.accentInk
    // A text field would take the style's own face.
    font.family: usual.font.family
    font.pixelSize: Math.round(field.points * TextScale.factor)
    opacity: field.enabled ? 1 : 0.45

    Accessible.name: field.hint
    Accessible.searchEdit: true

    onTextEdited: field.searched(field.text)

    Keys.onEscapePressed: event => {
        event.accepted = field.text !== "";
        if (event.accepted)
            field.clean();
    }

    background: Rectangle {
        radius: field.corner
        color: Theme.surfaceHi
        border.width: 1
        border.color: field.hovered ? Qt.alpha(Theme.inkSoft, 0.6) : Theme.hairline

        FocusRing {
            shown: field.activeFocus
            corner: field.corner
        }

        SymbolItem {
            anchors.left: parent.left
            anchors.leftMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            name: "magnifyingglass"
            color: Theme.inkSoft
            size: field.symbolSide
        }

        Label {
            anchors.left: parent.left
            anchors.leftMargin: field.startRoom
            anchors.verticalCenter: parent.verticalCenter
            width: Math.max(0, field.width - field.leftPadding - field.rightPadding)
            visible: field.text === "" && field.preeditText === ""
            text: field.hint
            size: field.points
            soft: true
            mute: true
        }
    }

    IconButton {
        id: cleaner

        objectName: "clearSearch"
        anchors.right: parent.right
        anchors.rightMargin: 4
        anchors.verticalCenter: parent.verticalCenter
        visible: field.text !== ""
        // Escape does the same.
        focusPolicy: Qt.NoFocus
        symbol: "xmark.circle.fill"
        size: 13
        side: 24
        text: qsTr("Clear")
        onClicked: {
            field.clean();
            field.forceActiveFocus(Qt.MouseFocusReason);
        }
    }
}
