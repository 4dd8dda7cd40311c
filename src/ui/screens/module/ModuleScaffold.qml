// SPDX-License-Identifier: MIT
// The frame of a module that scans: start page, progress, and results. A module provides its model and a component for
// the results, which has a `module` property. Each of the three is created when first shown, and then kept. Without
// such a component it never has results.
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

        FacePage {
            file: "ModuleHero.qml"
            module: scaffold.module
            wanted: scaffold.module.idle
        }
    }

    ModuleFace {
        id: scanFace

        shown: scaffold.module.scanning

        FacePage {
            file: "ModuleScan.qml"
            module: scaffold.module
            wanted: scaffold.module.scanning
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
            onLoaded: results.item.focus = true
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

    // The page of a face, created when it is first shown, and then kept.
    component FacePage: Loader {
        id: page

        required property string file
        required property ModuleScreenModel module
        required property bool wanted

        // `wanted` may change before all required properties are set.
        property bool made: false

        function build() {
            if (page.made && page.wanted && page.status === Loader.Null)
                page.setSource(page.file, {
                    "module": page.module
                });
        }

        anchors.fill: parent
        focus: true
        onWantedChanged: page.build()
        onLoaded: page.item.focus = true
        Component.onCompleted: {
            page.made = true;
            page.build();
        }
    }
}
