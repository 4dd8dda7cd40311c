// SPDX-License-Identifier: MIT
// A centred line of secondary text.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Label {
    anchors.horizontalCenter: parent?.horizontalCenter
    soft: true
    horizontalAlignment: Text.AlignHCenter
}
