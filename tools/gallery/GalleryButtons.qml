// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Components

FlowRow {
    spacing: 16

    PrimaryButton {
        text: "Run survey"
    }
    PrimaryButton {
        text: "Review and Remove"
        horizontalPadding: 18
        verticalPadding: 10
        textColor: "white"
    }
    SecondaryButton {
        text: "Empty"
    }
    SecondaryButton {
        text: "What changed since last scan"
        symbol: "clock.arrow.circlepath"
    }
    PlainButton {
        text: "Cancel"
    }
    PillButton {
        text: "Duplicates"
        symbol: "doc.on.doc"
        tint: "#15aabf"
    }
    LinkButton {
        text: "See all"
    }
    IconButton {
        text: "Reload"
        symbol: "arrow.clockwise"
        help: "Look again"
    }
}
