// SPDX-License-Identifier: MIT
// A hairline, as long as its place makes it.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Rectangle {
    implicitWidth: 1
    implicitHeight: 1
    color: Theme.hairline
}
