// SPDX-License-Identifier: MIT
// How a number or a colour follows input: hover, press, focus.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

PropertyAnimation {
    duration: Motion.quick
}
