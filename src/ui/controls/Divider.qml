// SPDX-License-Identifier: MIT
// A hairline, horizontal unless `vertical`.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Rectangle {
    property bool vertical: false

    implicitWidth: 1
    implicitHeight: 1
    color: Theme.hairline
}
