// SPDX-License-Identifier: MIT
// The states of all buttons.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Section {
    id: buttons

    required property string longText

    title: "Buttons"

    StateRow {
        name: ""
        all: ["normal", "hovered", "pressed", "focused", "disabled", "long text"]

        Label {
            required property string modelData

            text: modelData
            size: 11
            soft: true
        }
    }
    StateRow {
        name: "Button, primary"
        longText: buttons.longText

        Button {
            kind: Button.Primary
            text: "Run survey"
        }
    }
    StateRow {
        name: "Button, primary, alarming"
        longText: buttons.longText

        Button {
            kind: Button.Primary
            text: "Remove"
            symbol: "trash"
            alarming: true
            horizontalPadding: 18
            verticalPadding: 10
        }
    }
    StateRow {
        name: "Button, secondary"
        longText: buttons.longText

        Button {
            text: "Changes"
            symbol: "clock.arrow.circlepath"
        }
    }
    StateRow {
        name: "Button, plain"
        longText: buttons.longText

        Button {
            kind: Button.Plain
            text: "Cancel"
        }
    }
    StateRow {
        name: "Button, pill"
        longText: buttons.longText

        Button {
            kind: Button.Pill
            text: "Duplicates"
            symbol: "doc.on.doc"
            tint: "#15aabf"
        }
    }
    StateRow {
        name: "Button, removal"
        longText: buttons.longText

        Button {
            kind: Button.Removal
            text: "Remove selected"
        }
    }
    StateRow {
        name: "PillChoice, chosen"
        longText: buttons.longText

        PillChoice {
            text: "Duplicates"
            symbol: "doc.on.doc"
            tint: "#15aabf"
            chosen: true
        }
    }
    StateRow {
        name: "Button, link"
        longText: buttons.longText

        Button {
            kind: Button.Link
            text: "See all"
        }
    }
    StateRow {
        name: "ActionRow"
        filling: true
        longText: buttons.longText

        ActionRow {
            text: "Flush DNS cache"
            symbol: "network"
            tint: "#ff6b5e"
        }
    }
    StateRow {
        name: "MenuButton"

        MenuButton {
            text: "Select"
        }
    }
    StateRow {
        name: "IconButton"

        IconButton {
            text: "Reload"
            symbol: "arrow.clockwise"
        }
    }
    StateRow {
        name: "RowButton"
        all: ["normal", "hovered", "pressed"]

        RowButton {
            text: "Actions"
            symbol: "ellipsis.circle"
        }
    }
}
