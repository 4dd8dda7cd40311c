// SPDX-License-Identifier: MIT
// A busy indicator for short work. Stands still with reduced motion.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

SpinnerPicture {
    id: spinner

    property real side: 18

    implicitWidth: spinner.side
    implicitHeight: spinner.side
    color: Theme.accent

    NumberAnimation on turn {
        from: 0
        to: 1
        duration: 900
        loops: Animation.Infinite
        running: spinner.visible && !Motion.reduced
    }
}
