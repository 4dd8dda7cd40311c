// SPDX-License-Identifier: MIT
// A history as a small curve. It says nothing to a screen reader: the figures beside it do.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Charts
import Zelk.Controls

SparklinePicture {
    implicitWidth: 200
    implicitHeight: 44
    color: Theme.accent
}
