// SPDX-License-Identifier: MIT
// A button that looks like a link.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

BaseButton {
    id: link

    property real size: 12
    property string symbol: ""
    property color textColor: Theme.accentText

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    horizontalPadding: 2
    verticalPadding: 4

    opacity: !link.enabled ? 0.45 : link.down ? 0.7 : 1

    background: Item {
        FocusRing {
            shown: link.visualFocus
            corner: 4
        }
    }

    contentItem: ButtonLabel {
        text: link.text
        symbol: link.symbol
        color: link.textColor
        size: link.size
        underlined: link.hovered && link.enabled
    }
}
