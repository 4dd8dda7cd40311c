// SPDX-License-Identifier: MIT
// The settings window, of a fixed size.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App

SecondaryWindow {
    id: window

    required property SettingsScreenModel settings

    title: qsTr("Settings")
    width: 460
    height: 360
    minimumWidth: 460
    maximumWidth: 460
    minimumHeight: 360
    maximumHeight: 360

    // Opens at its top, wherever it was scrolled to before.
    onVisibleChanged: {
        if (window.visible)
            view.goToTop();
    }

    SettingsView {
        id: view

        anchors.fill: parent
        settings: window.settings
        headed: false
        focus: true
    }
}
