// SPDX-License-Identifier: MIT
// The computer and its drive's free space.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Item {
    id: header

    required property deviceFace device

    implicitWidth: box.width + names.wanted + volume.width + 40
    implicitHeight: Math.max(box.height, names.height, volume.height)

    Rectangle {
        id: box

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        width: laptop.width + 24
        height: laptop.height + 24
        radius: 12
        color: Qt.alpha(Theme.accent, 0.15)

        SymbolItem {
            id: laptop

            anchors.centerIn: parent
            name: "laptopcomputer"
            color: Theme.accent
            size: 22
        }
    }

    TwoLines {
        id: names

        anchors.left: box.right
        anchors.leftMargin: 14
        anchors.right: volume.left
        anchors.rightMargin: 20
        anchors.verticalCenter: parent.verticalCenter
        spacing: 3
        title: header.device.name
        note: header.device.detail
        size: 17
        weight: Font.DemiBold
        noteWraps: true
    }

    Column {
        id: volume

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: total.text !== ""
        width: visible ? Math.max(free.implicitWidth, total.implicitWidth) : 0
        spacing: 3

        AnimatedNumber {
            id: free

            anchors.right: parent.right
            value: header.device.freeBytes
            phrase: qsTr("%1 free")
            pixelSize: 15
            bold: true
        }

        Label {
            id: total

            anchors.right: parent.right
            text: header.device.totalText
            size: 11
            soft: true
        }
    }
}
