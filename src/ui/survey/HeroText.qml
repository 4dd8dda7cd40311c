// SPDX-License-Identifier: MIT
// A centred line that steps back behind the button.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Theme

Text {
    anchors.horizontalCenter: parent?.horizontalCenter
    color: Theme.inkSoft
    horizontalAlignment: Text.AlignHCenter
    textFormat: Text.PlainText
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
