// SPDX-License-Identifier: MIT
// The popup of a menu in the menu bar.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import QtQml.Models
import Zelk.App
import Zelk.Controls

T.Menu {
    id: menuSheet

    required property CommandMenu commands

    title: menuSheet.commands.title
    width: Math.round(220 * TextScale.factor)
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    padding: 6
    margins: 4
    overlap: 0
    // Screen readers find the popup item of the template, which has no name of its own.
    onAboutToShow: contentItem.parent.Accessible.name = menuSheet.title

    background: PanelGround {
        radius: 10
        color: Theme.surface
    }

    contentItem: ListView {
        implicitHeight: contentHeight
        model: menuSheet.contentModel
        interactive: contentHeight > height
        clip: true
        currentIndex: menuSheet.currentIndex
    }

    Instantiator {
        model: menuSheet.commands

        delegate: MenuEntry {
            onTriggered: menuSheet.commands.run(index)
        }
        onObjectAdded: (index, object) => menuSheet.insertItem(index, object as T.MenuItem)
    }
}
