// SPDX-License-Identifier: MIT
// What the volume holds, in four figures: side by side, or two by two where there is no room for that.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

SystemCard {
    id: card

    required property SystemScreenModel system

    title: qsTr("Capacity")

    Grid {
        id: figures

        readonly property real readable: 130 * TextScale.factor
        readonly property real cell: (figures.width - (figures.columns - 1) * figures.spacing) / figures.columns

        width: parent.width
        spacing: 16
        columns: figures.width >= 4 * figures.readable + 3 * figures.spacing ? 4 : 2
        visible: card.system.volumed

        Figure {
            width: figures.cell
            label: qsTr("total")
            value: card.system.totalBytes
        }
        Figure {
            width: figures.cell
            label: qsTr("used")
            value: card.system.usedBytes
        }
        Figure {
            width: figures.cell
            label: qsTr("free")
            value: card.system.freeBytes
        }
        Figure {
            width: figures.cell
            label: qsTr("purgeable")
            value: card.system.purgeableBytes
        }
    }

    Label {
        width: parent.width
        text: card.system.volumed ? SystemTexts.of(SystemTexts.PurgeableSpace) : qsTr("Volume capacity unavailable.")
        size: 12
        soft: true
        wrapMode: Text.Wrap
        lineHeight: 1.25
    }

    // Read as one: the label and its figure.
    component Figure: Item {
        id: figure

        required property string label
        required property real value

        implicitHeight: words.implicitHeight

        Accessible.role: Accessible.Paragraph
        Accessible.name: AccessibleText.joined([figure.label, AccessibleText.bytes(figure.value)])

        Column {
            id: words

            width: parent.width
            spacing: 4

            AnimatedNumber {
                anchors.left: parent.left
                value: figure.value
                pixelSize: 20
                bold: true
                mute: true
            }

            Label {
                width: parent.width
                text: figure.label
                size: 11
                soft: true
                mute: true
            }
        }
    }
}
