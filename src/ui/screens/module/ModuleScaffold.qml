// SPDX-License-Identifier: MIT
// The frame of a module that scans: start page, progress, and results. A module provides its model and a component for
// the results, which has a `module` property; they are created when first shown, and then kept. Without such a component
// it never has results.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

FocusScope {
    id: scaffold

    required property ModuleScreenModel module
    property Component content: null
    property Component trailing: null
    // The header of the results.
    property string resultsTitle: scaffold.module.title
    property string resultsSubtitle: scaffold.module.subtitle

    Rectangle {
        anchors.fill: parent
        color: Theme.ground
    }

    ModuleFace {
        shown: scaffold.module.idle

        ModuleHero {
            anchors.fill: parent
            module: scaffold.module
            focus: true
        }
    }

    ModuleFace {
        id: scanFace

        shown: scaffold.module.scanning

        Column {
            anchors.centerIn: parent
            width: parent.width - 2 * Theme.pageMargin

            ModuleOrb {
                anchors.horizontalCenter: parent.horizontalCenter
                symbol: scaffold.module.symbol
                tint: scaffold.module.tint
                pulsing: true
            }

            Label {
                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.min(implicitWidth, parent.width)
                topPadding: 20
                text: scaffold.module.scanningLabel
                size: 15
                font.weight: Font.DemiBold
            }

            AnimatedNumber {
                anchors.horizontalCenter: parent.horizontalCenter
                objectName: "moduleScanDetail"
                width: Math.min(implicitWidth, parent.width)
                phrase: scaffold.module.scanDetail
                color: Theme.inkSoft
                pixelSize: 12
                visible: text !== ""
            }

            Item {
                width: 1
                height: 20
            }

            ModuleProgressBar {
                anchors.horizontalCenter: parent.horizontalCenter
                objectName: "moduleProgressBar"
                tint: scaffold.module.tint
                name: scaffold.module.title
                doing: scaffold.module.doing
                share: scaffold.module.share
            }
        }

        Shortcut {
            sequence: "Escape"
            enabled: scanFace.visible && scaffold.module.scanning
            onActivated: scaffold.module.cancel()
        }
    }

    ModuleFace {
        shown: scaffold.module.results

        ModuleHeader {
            id: header

            anchors.left: parent.left
            anchors.right: parent.right
            symbol: scaffold.module.symbol
            tint: scaffold.module.tint
            title: scaffold.resultsTitle
            subtitle: scaffold.resultsSubtitle
            trailing: scaffold.trailing
        }

        Loader {
            id: results

            readonly property bool wanted: scaffold.module.results

            function keep() {
                if (results.wanted)
                    results.active = true;
            }

            anchors.top: header.bottom
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            active: false
            sourceComponent: scaffold.content
            focus: true
            onWantedChanged: results.keep()
            Component.onCompleted: results.keep()
        }

        Binding {
            target: results.item
            property: "module"
            value: scaffold.module
            when: results.item
        }
    }

    // A page. Cross-fades with the previous one and takes no input while hidden.
    component ModuleFace: FocusScope {
        id: face

        required property bool shown

        anchors.fill: parent
        opacity: face.shown ? 1 : 0
        visible: opacity > 0
        enabled: face.shown
        focus: face.shown

        Behavior on opacity {
            NumberAnimation {
                duration: Motion.gentle
                easing.type: Easing.OutCubic
            }
        }
    }
}
