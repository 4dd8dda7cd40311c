// SPDX-License-Identifier: MIT
// The frame of a module that scans: start page, progress, and results. A module provides its model and a component for
// the results, which has a `module` property. The results are created when first shown, and then kept.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

FocusScope {
    id: scaffold

    required property ModuleScreenModel module
    required property Component content
    property Component trailing: null

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
        id: progressArea

        shown: scaffold.module.scanning

        ModuleScanning {
            anchors.fill: parent
            module: scaffold.module
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
            title: scaffold.module.title
            subtitle: scaffold.module.subtitle
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
}
