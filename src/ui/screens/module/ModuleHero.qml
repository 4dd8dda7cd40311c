// SPDX-License-Identifier: MIT
// The start page of a module: its title, what it does, and the button that starts it. Scrolls if there is too little
// space.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Charts
import Zelk.Controls

FocusScope {
    id: hero

    required property ModuleScreenModel module

    ModuleGlow {
        objectName: "moduleGlow"
        anchors.fill: parent
        middle: Qt.point(width / 2, column.y + orb.y + orb.height / 2 - scroll.contentY)
        color: hero.module.tint
        ground: Theme.ground
        dark: Theme.isDark
    }

    Flickable {
        id: scroll

        anchors.fill: parent
        contentWidth: width
        contentHeight: Math.max(height, column.implicitHeight + 2 * 28)
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        // Without a button, the page takes the focus.
        focus: hero.module.scanLabel === ""

        Accessible.role: Accessible.Document
        Accessible.name: hero.module.title

        Column {
            id: column

            anchors.centerIn: parent
            width: scroll.width - 2 * Theme.pageMargin

            ModuleOrb {
                id: orb

                anchors.horizontalCenter: parent.horizontalCenter
                symbol: hero.module.symbol
                tint: hero.module.tint
            }

            Label {
                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.min(implicitWidth, column.width)
                topPadding: 16
                text: hero.module.title
                size: 30
                font.weight: Font.Bold
                font.letterSpacing: -0.6
                Accessible.role: Accessible.Heading
            }

            Label {
                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.min(420, column.width)
                topPadding: 8
                text: hero.module.subtitle
                size: 14
                soft: true
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
                lineHeight: 1.25
            }

            Item {
                width: 1
                height: 24
            }

            Button {
                kind: Button.Primary
                anchors.horizontalCenter: parent.horizontalCenter
                objectName: "moduleScanButton"
                text: hero.module.scanLabel
                focus: true
                onClicked: hero.module.scan()
            }
        }
    }
}
