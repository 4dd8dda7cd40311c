// SPDX-License-Identifier: MIT
// A history as a small curve. Hidden from screen readers: the numbers beside it say the same.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Charts
import Zelk.Controls

SparklinePicture {
    implicitWidth: 200
    implicitHeight: 44
    color: Theme.accent
}
