// SPDX-License-Identifier: MIT
// The Tools screen: all features, each row opening its module.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

FocusScope {
    id: view

    required property ToolsScreenModel tools

    Rectangle {
        anchors.fill: parent
        color: Theme.ground
    }

    ModuleHeader {
        id: header

        anchors.left: parent.left
        anchors.right: parent.right
        symbol: view.tools.look.symbol
        tint: view.tools.look.color
        title: view.tools.look.title
        subtitle: qsTr("everything Zelk can do")
    }

    ScrollArea {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: header.bottom
        anchors.bottom: parent.bottom
        contentHeight: rows.implicitHeight

        Column {
            id: rows

            width: parent.width
            padding: 24
            spacing: 12

            Repeater {
                model: view.tools.tools

                ToolRow {
                    width: rows.width - 2 * rows.padding
                    focus: index === 0
                    onClicked: view.tools.press(index)
                }
            }
        }
    }
}
