// SPDX-License-Identifier: MIT
// The whole gallery: all sections below each other.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls
import Zelk.Gallery

Rectangle {
    id: gallery

    implicitWidth: Math.round(1180 * TextScale.factor)
    implicitHeight: column.height + 48
    color: Theme.ground
    LayoutMirroring.enabled: ReadingDirection.mirrored
    LayoutMirroring.childrenInherit: true

    GalleryModel {
        id: samples
    }

    ScrollArea {
        anchors.fill: parent
        anchors.margins: 24

        Column {
            id: column

            width: parent.width
            spacing: 24

            ButtonStates {
                width: parent.width
                longText: samples.longText
            }
            ControlStates {
                width: parent.width
                longText: samples.longText
            }
            ScanButtonStates {
                width: parent.width
                figures: samples
            }
            CardStates {
                width: parent.width
                longText: samples.longText
            }
            FigureStates {
                width: parent.width
                figures: samples
            }
            ListStates {
                width: parent.width
                longText: samples.longText
            }
            NavigationStates {
                width: parent.width
                figures: samples
            }
            BarStates {
                width: parent.width
                longText: samples.longText
            }
            BubbleStates {
                width: parent.width
                figures: samples
            }
            PopupStates {
                width: parent.width
                longText: samples.longText
            }
        }
    }
}
