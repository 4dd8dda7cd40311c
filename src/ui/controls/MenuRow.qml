// SPDX-License-Identifier: MIT
// An item of a MenuPanel.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

T.MenuItem {
    id: row

    property string symbol: ""
    // Marks an action that removes something.
    property bool alarming: false

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    horizontalPadding: 10
    verticalPadding: 6
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

    contentItem: Row {
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
}
