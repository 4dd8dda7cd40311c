// SPDX-License-Identifier: MIT
// A centred line that steps back behind the button.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Words {
    anchors.horizontalCenter: parent?.horizontalCenter
    soft: true
    horizontalAlignment: Text.AlignHCenter
}
