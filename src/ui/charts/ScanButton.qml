// SPDX-License-Identifier: MIT
// The large round scan button. Its layers are painted once; animations transform whole layers.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Charts
import Zelk.Controls

BaseButton {
    id: button

    // In bytes: scanned so far, and recoverable.
    required property real scanned
    required property real recoverable
    required property bool idle
    required property bool scanning
    required property bool finished

    implicitWidth: glow.implicitWidth
    implicitHeight: glow.implicitHeight
    containmentMask: glow

    ScanButtonLayer {
        id: glow

        anchors.centerIn: parent
        kind: ScanButtonLayer.Glow
        color: Theme.accent
        scale: button.hovered && !button.scanning ? 1.05 : 1
        Behavior on scale {
            NumberAnimation {
                duration: Motion.gentle
                easing.type: Easing.OutCubic
            }
        }
    }

    ScanButtonLayer {
        id: comet

        objectName: "comet"
        anchors.centerIn: parent
        kind: ScanButtonLayer.Comet
        color: Theme.accent
        opacity: button.scanning ? 1 : 0
        visible: opacity > 0
        Behavior on opacity {
            NumberAnimation {
                duration: Motion.gentle
            }
        }

        RotationAnimator on rotation {
            from: 0
            to: 360
            duration: Motion.turn
            loops: Animation.Infinite
            running: comet.visible && !Motion.reduced
        }
    }

    Item {
        anchors.fill: parent
        scale: button.down && !button.scanning ? 0.97 : 1
        Behavior on scale {
            NumberAnimation {
                duration: Motion.quick
            }
        }

        ScanButtonLayer {
            id: disc

            anchors.centerIn: parent
            kind: ScanButtonLayer.Disc
        }

        ScanButtonLayer {
            anchors.centerIn: parent
            kind: ScanButtonLayer.Sheen
            opacity: button.hovered && !button.scanning ? 1 : 0
            Behavior on opacity {
                NumberAnimation {
                    duration: Motion.quick
                }
            }
        }

        ScanButtonFace {
            shown: button.idle
            symbol: "scope"
            title: qsTr("Scan")
            titleSize: 20
            caption: SystemTexts.of(SystemTexts.WholeComputer)
        }
        ScanButtonFace {
            shown: button.scanning
            bytes: button.scanned
            titleSize: 26
            duration: Motion.follow
            interval: Motion.readable
            caption: qsTr("scanning…")
        }
        ScanButtonFace {
            shown: button.finished
            bytes: button.recoverable
            titleSize: 28
            duration: Motion.reveal
            caption: qsTr("recoverable")
            hint: qsTr("re-run")
        }
    }

    Item {
        anchors.centerIn: parent
        width: disc.width
        height: disc.height

        FocusRing {
            shown: button.visualFocus
            corner: disc.height / 2
        }
    }
}
