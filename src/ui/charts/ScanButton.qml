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

    PaintedLayer {
        id: glow

        anchors.centerIn: parent
        kind: PaintedLayer.ScanGlow
        color: Theme.accent
        scale: button.hovered && !button.scanning ? 1.05 : 1
        Behavior on scale {
            GentleChange {}
        }
    }

    PaintedLayer {
        id: comet

        objectName: "comet"
        anchors.centerIn: parent
        kind: PaintedLayer.ScanComet
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
            QuickChange {}
        }

        PaintedLayer {
            id: disc

            anchors.centerIn: parent
            kind: PaintedLayer.ScanDisc
        }

        PaintedLayer {
            anchors.centerIn: parent
            kind: PaintedLayer.ScanSheen
            opacity: button.hovered && !button.scanning ? 1 : 0
            Behavior on opacity {
                QuickChange {}
            }
        }

        Face {
            shown: button.idle
            symbol: "scope"
            title: qsTr("Scan")
            titleSize: 20
            caption: SystemTexts.of(SystemTexts.WholeComputer)
        }
        Face {
            shown: button.scanning
            bytes: button.scanned
            titleSize: 26
            duration: Motion.follow
            interval: Motion.readable
            caption: qsTr("scanning…")
        }
        Face {
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

    // The texts in one phase. They cross-fade with the other faces; empty lines take no space.
    component Face: Column {
        id: face

        required property bool shown
        property string symbol: ""
        // A word, or a number of bytes in its place.
        property string title: ""
        property real bytes: NaN
        required property real titleSize
        // How the number animates, as in AnimatedNumber.
        property int duration: 0
        property int interval: 0
        required property string caption
        property string hint: ""

        // The usable width of the disc. Everything is scaled down to fit it.
        readonly property real room: 152
        readonly property real fit: Math.min(1, face.room / Math.max(1, face.implicitWidth))

        anchors.centerIn: parent
        spacing: 2
        opacity: face.shown ? 1 : 0
        scale: face.fit * (face.shown ? 1 : 0.9)
        // Visible from the start, so that a number set then animates.
        visible: face.shown || opacity > 0

        Behavior on opacity {
            GentleChange {}
        }
        Behavior on scale {
            GentleChange {}
        }

        SymbolItem {
            anchors.horizontalCenter: parent.horizontalCenter
            name: face.symbol
            color: Theme.accentInk
            size: 34
            visible: name !== ""
        }

        AnimatedNumber {
            anchors.horizontalCenter: parent.horizontalCenter
            value: face.bytes
            phrase: face.title
            duration: face.duration
            interval: face.interval
            color: Theme.accentInk
            pixelSize: face.titleSize
            bold: true
            mute: true
        }

        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            text: face.caption
            color: Theme.accentInk
            opacity: 0.8
            font.pixelSize: Math.round(11 * TextScale.factor)
            font.weight: Font.Medium
            Accessible.ignored: true
        }

        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            topPadding: 8
            text: face.hint
            color: Theme.accentInk
            opacity: 0.7
            font.pixelSize: Math.round(10 * TextScale.factor)
            font.weight: Font.DemiBold
            visible: text !== ""
            Accessible.ignored: true
        }
    }
}
