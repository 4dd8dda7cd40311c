// SPDX-License-Identifier: MIT
// A welcome page: a disc, a title and a text. Pages other than the current one are hidden from screen readers, even
// while they slide out.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Item {
    id: page

    required property int index
    required property introPage modelData
    property bool current: false

    implicitHeight: column.implicitHeight

    opacity: page.current ? 1 : 0
    Behavior on opacity {
        NumberAnimation {
            duration: Motion.gentle
        }
    }

    Column {
        id: column

        anchors.horizontalCenter: parent.horizontalCenter
        width: page.width
        spacing: 12

        Rectangle {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 140
            height: 140
            radius: width / 2
            color: Qt.alpha(page.modelData.tint, 0.16)

            Rectangle {
                anchors.centerIn: parent
                width: 108
                height: 108
                radius: width / 2
                gradient: Gradient {
                    GradientStop {
                        position: 0
                        color: Qt.lighter(page.modelData.tint, 1.15)
                    }
                    GradientStop {
                        position: 1
                        color: page.modelData.tint
                    }
                }

                SymbolItem {
                    anchors.centerIn: parent
                    name: page.modelData.symbol
                    color: "white"
                    size: 44
                }
            }
        }

        Label {
            width: parent.width
            topPadding: 16
            text: page.modelData.title
            size: 26
            font.weight: Font.Bold
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            mute: !page.current
            Accessible.role: Accessible.Heading
        }

        Label {
            width: parent.width
            text: page.modelData.body
            size: 14
            soft: true
            lineHeight: 1.35
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            mute: !page.current
        }
    }
}
