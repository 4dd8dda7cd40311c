// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Components
import Zelk.Gallery
import Zelk.Theme

Rectangle {
    id: gallery

    implicitWidth: 980
    implicitHeight: Math.min(column.height + 48, 2400)
    color: Theme.ground

    GalleryModel {
        id: figures
    }

    ScrollArea {
        anchors.fill: parent
        anchors.margins: 24

        Column {
            id: column

            width: parent.width
            spacing: 24

            DeviceHeader {
                width: parent.width
                device: figures.device
            }

            Card {
                width: parent.width

                Column {
                    width: parent.width
                    spacing: 12

                    Eyebrow {
                        text: "Scanned storage"
                    }
                    StorageRibbon {
                        width: parent.width
                        segments: figures.segments
                        freeBytes: figures.freeBytes
                    }
                }
            }

            GalleryBubbles {
                width: parent.width
                model: figures.bubbles
                plain: figures.plainBubbles
            }

            GalleryCards {
                width: parent.width
            }

            GalleryFigures {
                width: parent.width
                history: figures.history
            }

            GalleryButtons {
                width: parent.width
            }

            GalleryButtons {
                width: parent.width
                enabled: false
            }

            GalleryControls {
                width: parent.width
            }

            Row {
                ScanButton {
                    text: "Scan"
                    idleFace: figures.idleFace
                    scanningFace: figures.scanningFace
                    finishedFace: figures.finishedFace
                    idle: true
                    scanning: false
                    finished: false
                }
                ScanButton {
                    text: "Scanning"
                    idleFace: figures.idleFace
                    scanningFace: figures.scanningFace
                    finishedFace: figures.finishedFace
                    idle: false
                    scanning: true
                    finished: false
                }
                ScanButton {
                    text: "Scan again"
                    idleFace: figures.idleFace
                    scanningFace: figures.scanningFace
                    finishedFace: figures.finishedFace
                    idle: false
                    scanning: false
                    finished: true
                }
            }
        }
    }
}
