// SPDX-License-Identifier: MIT
// The contents of the About window: mark, name, and version and system information.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Charts
import Zelk.Controls

Item {
    id: view

    required property AboutModel about

    implicitWidth: Math.max(300, column.implicitWidth + 2 * 32)
    implicitHeight: column.implicitHeight + 2 * 32

    Column {
        id: column

        anchors.centerIn: parent

        PaintedLayer {
            anchors.horizontalCenter: parent.horizontalCenter
            kind: PaintedLayer.Mark
            color: Theme.accent

            SymbolItem {
                anchors.centerIn: parent
                name: "internaldrive"
                color: Theme.accentInk
                size: 36
            }
        }

        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            topPadding: 12
            bottomPadding: 16
            text: view.about.name
            size: 22
            font.weight: Font.Bold
            font.letterSpacing: -0.4
            Accessible.role: Accessible.Heading
        }

        Repeater {
            model: view.about.rows

            Row {
                id: row

                required property aboutRow modelData

                anchors.horizontalCenter: parent?.horizontalCenter
                bottomPadding: 4
                spacing: 8

                Label {
                    text: row.modelData.label
                    size: 12
                    soft: true
                }
                Label {
                    text: row.modelData.value
                    size: 12
                    font.weight: Font.Medium
                }
            }
        }
    }
}
