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
        name: "PrimaryButton"
        longText: buttons.longText

        PrimaryButton {
            text: "Run survey"
        }
    }
    StateRow {
        name: "PrimaryButton, alarming"
        longText: buttons.longText

        PrimaryButton {
            text: "Remove"
            symbol: "trash"
            alarming: true
            textColor: "white"
            horizontalPadding: 18
            verticalPadding: 10
        }
    }
    StateRow {
        name: "SecondaryButton"
        longText: buttons.longText

        SecondaryButton {
            text: "Changes"
            symbol: "clock.arrow.circlepath"
        }
    }
    StateRow {
        name: "PlainButton"
        longText: buttons.longText

        PlainButton {
            text: "Cancel"
        }
    }
    StateRow {
        name: "PillButton"
        longText: buttons.longText

        PillButton {
            text: "Duplicates"
            symbol: "doc.on.doc"
            tint: "#15aabf"
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
        name: "LinkButton"
        longText: buttons.longText

        LinkButton {
            text: "See all"
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
}
