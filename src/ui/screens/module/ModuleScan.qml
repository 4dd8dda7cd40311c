// SPDX-License-Identifier: MIT
// The page of a module that scans: its orb, pulsing, what it does, and how far it is.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

FocusScope {
    id: scan

    required property ModuleScreenModel module

    Column {
        anchors.centerIn: parent
        width: parent.width - 2 * Theme.pageMargin

        ModuleOrb {
            anchors.horizontalCenter: parent.horizontalCenter
            symbol: scan.module.symbol
            tint: scan.module.tint
            pulsing: true
        }

        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(implicitWidth, parent.width)
            topPadding: 20
            text: scan.module.scanningLabel
            size: 15
            font.weight: Font.DemiBold
        }

        AnimatedNumber {
            anchors.horizontalCenter: parent.horizontalCenter
            objectName: "moduleScanDetail"
            width: Math.min(implicitWidth, parent.width)
            phrase: scan.module.scanDetail
            color: Theme.inkSoft
            pixelSize: 12
            visible: text !== ""
        }

        Item {
            width: 1
            height: 20
        }

        ModuleProgressBar {
            anchors.horizontalCenter: parent.horizontalCenter
            objectName: "moduleProgressBar"
            tint: scan.module.tint
            name: scan.module.title
            doing: scan.module.doing
            share: scan.module.share
        }
    }
}
