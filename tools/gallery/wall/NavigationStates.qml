// SPDX-License-Identifier: MIT
// The states of the sidebar and of module headers and start pages.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls
import Zelk.Gallery

Section {
    id: section

    required property GalleryModel figures

    title: "Navigation"

    component Place: SidebarRow {
        heading: ""
        title: "Clutter"
        symbol: "tray.full"
        tint: "#22c3c9"
        selected: false
        name: ""
    }

    StateRow {
        name: "SidebarRow"
        filling: true
        all: ["normal", "hovered", "pressed", "focused"]

        Place {}
    }
    StateRow {
        name: "SidebarRow, selected"
        filling: true
        all: ["normal", "hovered", "pressed", "focused"]

        Place {
            selected: true
        }
    }
    StateRow {
        name: "SidebarRow, first of a group, long text"
        filling: true
        all: ["normal", "focused"]

        Place {
            heading: "Clean"
            title: section.figures.longText
        }
    }
    StateRow {
        name: "SidebarRow, folded up"
        all: ["normal", "hovered", "focused"]

        Place {
            width: 44
            collapsed: true
        }
    }

    SampleHeader {
        width: parent.width
    }
    ModuleHeader {
        width: parent.width
        symbol: "tray.full"
        tint: "#22c3c9"
        title: section.figures.longText
        subtitle: ""
    }

    ModuleHero {
        width: parent.width
        height: 400 * TextScale.factor
        module: section.figures.module
    }

    Row {
        spacing: 24

        Repeater {
            model: [false, true]

            ModuleOrb {
                required property bool modelData

                symbol: "sparkles"
                tint: Theme.accent
                pulsing: modelData
            }
        }
    }
}
