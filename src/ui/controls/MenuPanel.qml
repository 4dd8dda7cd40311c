// SPDX-License-Identifier: MIT
// A popup menu, of a button, of a row or of the menu bar.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

T.Menu {
    id: panel

    // The largest implicit width of the rows. Their width follows the menu's.
    readonly property real widest: {
        let most = 0;
        for (let i = 0; i < panel.count; ++i)
            most = Math.max(most, panel.itemAt(i)?.implicitWidth ?? 0);
        return most;
    }

    implicitWidth: Math.max(160, panel.widest + leftPadding + rightPadding)
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    padding: 5
    margins: 8
    // Screen readers find the popup item of the template, which has no name of its own.
    onAboutToShow: contentItem.parent.Accessible.name = panel.title

    enter: Transition {
        QuickChange {
            property: "opacity"
            from: 0
            to: 1
        }
    }

    background: PanelGround {
        radius: 10
    }

    contentItem: ListView {
        implicitHeight: contentHeight
        model: panel.contentModel
        interactive: Window.window ? contentHeight + panel.topPadding + panel.bottomPadding > Window.window.height : false
        clip: true
        currentIndex: panel.currentIndex

        T.ScrollBar.vertical: ThinScrollBar {}
    }
}
