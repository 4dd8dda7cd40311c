// SPDX-License-Identifier: MIT
// The About window: mark, name, and version and system information. It is sized to its contents.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Charts
import Zelk.Controls

SecondaryWindow {
    id: window

    required property aboutInfo about

    readonly property real fullWidth: Math.max(300, column.implicitWidth + 2 * 32)
    readonly property real fullHeight: column.implicitHeight + 2 * 32

    title: qsTr("About Zelk")
    width: window.fullWidth
    height: window.fullHeight
    minimumWidth: window.fullWidth
    maximumWidth: window.fullWidth
    minimumHeight: window.fullHeight
    maximumHeight: window.fullHeight

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
            text: window.about.name
            size: 22
            font.weight: Font.Bold
            font.letterSpacing: -0.4
            Accessible.role: Accessible.Heading
        }

        InfoRow {
            label: qsTr("Version")
            value: window.about.version
        }

        InfoRow {
            label: qsTr("System")
            value: window.about.system
        }

        InfoRow {
            label: qsTr("Chip")
            value: window.about.chip
            visible: value !== ""
        }
    }

    component InfoRow: Row {
        id: row

        required property string label
        required property string value

        anchors.horizontalCenter: parent.horizontalCenter
        bottomPadding: 4
        spacing: 8

        Label {
            text: row.label
            size: 12
            soft: true
            mute: !row.visible
        }
        Label {
            text: row.value
            size: 12
            font.weight: Font.Medium
            mute: !row.visible
        }
    }
}
