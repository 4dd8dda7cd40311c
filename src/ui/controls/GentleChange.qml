// SPDX-License-Identifier: MIT
// How a number goes from one view or phase to another.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

PropertyAnimation {
    duration: Motion.gentle
    easing.type: Easing.OutCubic
}
