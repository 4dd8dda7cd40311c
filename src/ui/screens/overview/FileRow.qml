// SPDX-License-Identifier: MIT
// A file with its size.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

T.Control {
    id: row

    required property string symbol
    required property color tint
    required property string name
    required property string path
    required property real bytes
    required property bool divided

    implicitHeight: Math.max(40, label.implicitHeight + 20)
    hoverEnabled: true

    Accessible.role: Accessible.ListItem
    Accessible.name: AccessibleText.joined([row.name, AccessibleText.bytes(row.bytes)])

    background: Item {
        Divider {
            width: parent.width
            visible: row.divided
        }
    }

    Item {
        id: content

        x: row.leftPadding
        y: row.topPadding
        width: row.availableWidth
        height: row.availableHeight

        SymbolItem {
            id: icon

            anchors.verticalCenter: parent.verticalCenter
            name: row.symbol
            color: row.tint.valid ? row.tint : Theme.otherFiles
            size: 16
        }

        Label {
            id: label

            anchors.left: icon.right
            anchors.leftMargin: 12
            anchors.right: figure.left
            anchors.rightMargin: 16
            anchors.verticalCenter: parent.verticalCenter
            text: row.name
            elide: Text.ElideMiddle
            mute: true
        }

        AnimatedNumber {
            id: figure

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            value: row.bytes
            pixelSize: 12
            mute: true
        }
    }

    HelpTip {
        control: row
        text: row.path
    }
}
