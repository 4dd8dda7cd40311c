// SPDX-License-Identifier: MIT
// A help topic, limited to a readable line length.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Item {
    id: page

    required property HelpModel help

    implicitHeight: column.implicitHeight + 2 * 32

    Column {
        id: column

        x: 32
        y: 32
        width: Math.min(page.width - 2 * 32, 560 * TextScale.factor)
        spacing: 12

        Tile {
            symbol: page.help.topic.symbol
            tint: page.help.topic.tint
            side: 40
            symbolSize: 20
        }

        Label {
            width: parent.width
            topPadding: 8
            text: page.help.topic.title
            size: 20
            font.weight: Font.DemiBold
            wrapMode: Text.Wrap
            Accessible.role: Accessible.Heading
        }

        Label {
            width: parent.width
            bottomPadding: 4
            text: page.help.topic.lead
            size: 15
            soft: true
            lineHeight: 1.3
            wrapMode: Text.Wrap
        }

        Repeater {
            model: page.help.topic.paragraphs

            Label {
                required property string modelData

                width: column.width
                text: modelData
                size: 13
                lineHeight: 1.45
                wrapMode: Text.Wrap
            }
        }
    }
}
