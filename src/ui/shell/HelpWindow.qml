// SPDX-License-Identifier: MIT
// The help window.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App

SecondaryWindow {
    id: window

    required property HelpModel help

    title: qsTr("Zelk Help")
    width: 760
    height: 520
    minimumWidth: 520
    minimumHeight: 360
    flags: Qt.Window

    HelpView {
        anchors.fill: parent
        help: window.help
        focus: true
    }
}
