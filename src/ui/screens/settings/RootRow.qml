// SPDX-License-Identifier: MIT
// A scan root, and the button that removes it from the list. Long paths are elided in the middle, since both ends tell
// folders apart. The tool tip has the whole path.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

T.Control {
    id: row

    required property int index
    required property string path
    required property string removeName

    signal removeClicked(ringed: bool)

    function takeKeyboard(reason) {
        remove.forceActiveFocus(reason);
    }

    implicitHeight: content.implicitHeight
    hoverEnabled: true

    Item {
        id: content

        x: row.leftPadding
        y: row.topPadding
        width: row.availableWidth
        height: row.availableHeight
        implicitHeight: Math.max(words.implicitHeight, remove.implicitHeight)

        SymbolItem {
            id: symbolItem

            anchors.verticalCenter: parent.verticalCenter
            name: "folder.fill"
            color: Theme.accent
            size: 16
        }

        Label {
            id: words

            objectName: "rootPath"
            anchors.left: symbolItem.right
            anchors.leftMargin: 12
            anchors.right: remove.left
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            text: row.path
            size: 13
            elide: Text.ElideMiddle
        }

        IconButton {
            id: remove

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            symbol: "minus.circle"
            size: 16
            text: row.removeName
            help: row.removeName
            onClicked: row.removeClicked(remove.visualFocus)
        }
    }

    HelpTip {
        text: words.truncated && !remove.hovered ? row.path : ""
        control: row
    }
}
