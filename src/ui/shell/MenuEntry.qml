// SPDX-License-Identifier: MIT
// A menu entry with its shortcut at the right, and a divider above if it starts a group.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

T.MenuItem {
    id: entry

    required property int index
    required property string title
    required property string shortcutText
    required property bool startsGroup
    required property string name

    objectName: entry.name
    text: entry.title
    width: parent?.width ?? 0
    implicitHeight: Math.max(28, label.implicitHeight + 10) + topPadding
    topPadding: entry.startsGroup ? 9 : 0
    hoverEnabled: true
    Accessible.name: entry.title
    Accessible.onPressAction: {
        if (entry.enabled)
            entry.clicked();
    }

    background: Item {
        Rectangle {
            anchors.fill: parent
            anchors.topMargin: entry.topPadding
            radius: 6
            color: entry.highlighted ? Theme.surfaceHi : "transparent"
        }

        Rectangle {
            y: 4
            width: parent.width
            height: 1
            color: Theme.hairline
            visible: entry.startsGroup
        }
    }

    Item {
        id: content

        x: entry.leftPadding
        y: entry.topPadding
        width: entry.availableWidth
        height: entry.availableHeight

        Label {
            id: label

            anchors.left: parent.left
            anchors.leftMargin: 10
            anchors.right: key.left
            anchors.rightMargin: 16
            anchors.verticalCenter: parent.verticalCenter
            text: entry.title
            size: 13
            mute: true
        }

        Label {
            id: key

            anchors.right: parent.right
            anchors.rightMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            text: entry.shortcutText
            size: 12
            soft: true
            mute: true
        }
    }
}
