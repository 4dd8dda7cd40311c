// SPDX-License-Identifier: MIT
// The states of ScanButton.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Charts
import Zelk.Controls
import Zelk.Gallery

Section {
    id: section

    required property GalleryModel figures

    title: "ScanButton: idle, hovered, pressed, focused, scanning, finished"

    component Face: ScanButton {
        text: "Scan"
        scanned: 41.86e9
        recoverable: 41.86e9
        idle: !scanning && !finished
        scanning: false
        finished: false
    }

    FlowRow {
        width: parent.width

        Face {}
        Face {
            objectName: "hovered"
        }
        Face {
            objectName: "pressed"
        }
        Face {
            objectName: "focused"
        }
        Face {
            scanning: true
        }
        Face {
            finished: true
        }
    }
}
