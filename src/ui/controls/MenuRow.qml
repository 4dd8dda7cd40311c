// SPDX-License-Identifier: MIT
// An item of a MenuPanel: a symbol or a tick, its text, and at the right the keys that do the same.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

T.MenuItem {
    id: row

    property string symbol: ""
    // Marks an action that removes something.
    property bool alarming: false
    property string shortcutText: ""
    // Puts a divider above.
    property bool startsGroup: false

    readonly property int groupGap: row.startsGroup ? 9 : 0

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    horizontalPadding: 10
    verticalPadding: 6
    topPadding: row.verticalPadding + row.groupGap
    topInset: row.groupGap
    hoverEnabled: true
    opacity: row.enabled ? 1 : 0.45
    Accessible.name: row.text
    Accessible.onPressAction: {
        if (row.enabled)
            row.clicked();
    }

    background: Rectangle {
        radius: 6
        color: row.down ? Theme.pressWash : row.highlighted ? Theme.hoverWash : "transparent"
    }

    contentItem: Item {
        // Without ids, which would make Qt create the content at once.
        implicitWidth: children[0].implicitWidth + (row.shortcutText === "" ? 0 : 16 + children[1].implicitWidth)
        implicitHeight: children[0].implicitHeight

        Row {
            anchors.left: parent.left
            spacing: 8

            SymbolItem {
                anchors.verticalCenter: parent.verticalCenter
                visible: row.symbol !== "" || row.checkable
                opacity: row.checkable && !row.checked ? 0 : 1
                name: row.checkable ? "checkmark" : row.symbol
                color: row.alarming ? Theme.alertText : Theme.inkSoft
                size: Math.round(12 * TextScale.factor)
            }

            Label {
                text: row.text
                color: row.alarming ? Theme.alertText : Theme.ink
                size: 12
                mute: true
            }
        }

        Label {
            anchors.right: parent.right
            text: row.shortcutText
            size: 12
            soft: true
            mute: true
        }
    }

    Divider {
        y: 4
        width: parent.width
        visible: row.startsGroup
    }
}
