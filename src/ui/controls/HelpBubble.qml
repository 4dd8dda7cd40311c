// SPDX-License-Identifier: MIT
// A tool tip. Created by HelpTip.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

T.ToolTip {
    id: tip

    required property Item control

    readonly property real widest: 280 * TextScale.factor

    parent: tip.control
    visible: true
    delay: 600
    x: Math.round((tip.control.width - width) / 2)
    y: tip.control.height + 6
    margins: 8
    horizontalPadding: 10
    verticalPadding: 6
    implicitWidth: Math.min(tip.widest, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    closePolicy: T.Popup.CloseOnPressOutsideParent

    enter: Transition {
        QuickChange {
            property: "opacity"
            from: 0
            to: 1
        }
    }

    background: PanelGround {
        radius: 8
        lift: 10
    }

    contentItem: Label {
        text: tip.text
        size: 11
        wrapMode: Text.Wrap
    }
}
