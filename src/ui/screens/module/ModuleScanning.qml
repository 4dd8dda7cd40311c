// SPDX-License-Identifier: MIT
// The progress page of a module.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Item {
    id: progress

    required property ModuleScreenModel module

    Column {
        anchors.centerIn: parent
        width: parent.width - 2 * 26

        ModuleOrb {
            anchors.horizontalCenter: parent.horizontalCenter
            symbol: progress.module.symbol
            tint: progress.module.tint
            pulsing: true
        }

        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(implicitWidth, parent.width)
            topPadding: 20
            text: progress.module.scanningLabel
            size: 15
            font.weight: Font.DemiBold
        }

        AnimatedNumber {
            anchors.horizontalCenter: parent.horizontalCenter
            objectName: "moduleScanDetail"
            width: Math.min(implicitWidth, parent.width)
            phrase: progress.module.scanDetail
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
            tint: progress.module.tint
            name: progress.module.title
            doing: progress.module.scanningLabel
        }
    }

    Shortcut {
        sequence: "Escape"
        enabled: progress.visible && progress.module.scanning
        onActivated: progress.module.cancel()
    }
}
