// SPDX-License-Identifier: MIT
// The About window, sized to its contents.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App

SecondaryWindow {
    id: window

    required property AboutModel about

    title: qsTr("About Zelk")
    width: view.implicitWidth
    height: view.implicitHeight
    minimumWidth: view.implicitWidth
    maximumWidth: view.implicitWidth
    minimumHeight: view.implicitHeight
    maximumHeight: view.implicitHeight

    AboutView {
        id: view

        anchors.fill: parent
        about: window.about
    }
}
