// SPDX-License-Identifier: MIT
// The current folder's name, and the buttons Start Over and Back.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Item {
    id: bar

    required property LensScreenModel lens

    // Emitted when a press on Back has reached the top and so disabled the button.
    signal stepped(bool byKey)

    implicitHeight: Math.max(52, startOver.implicitHeight + 16, nameText.implicitHeight + 16)

    LinkButton {
        id: startOver

        objectName: "lensStartOver"
        anchors.left: parent.left
        anchors.leftMargin: 24
        anchors.verticalCenter: parent.verticalCenter
        text: qsTr("Start Over")
        size: 13
        symbol: "arrow.counterclockwise"
        textColor: hovered ? Theme.ink : Theme.inkSoft
        onClicked: bar.lens.startOver()
    }

    Divider {
        id: divider

        anchors.left: startOver.right
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        height: 20
        vertical: true
    }

    IconButton {
        id: back

        objectName: "lensBack"
        anchors.left: divider.right
        anchors.leftMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        symbol: "chevron.left"
        tint: Theme.ink
        text: qsTr("Back")
        help: qsTr("Back")
        enabled: bar.lens.canGoBack
        onClicked: {
            const byKey = back.visualFocus;
            bar.lens.back();
            if (!bar.lens.canGoBack)
                bar.stepped(byKey);
        }
    }

    SymbolItem {
        id: drive

        anchors.left: back.right
        anchors.leftMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        name: "internaldrive.fill"
        color: Theme.inkSoft
        size: Math.round(12 * TextScale.factor)
    }

    Label {
        id: nameText

        objectName: "lensPlace"
        anchors.left: drive.right
        anchors.leftMargin: 8
        anchors.right: parent.right
        anchors.rightMargin: 26
        anchors.verticalCenter: parent.verticalCenter
        text: bar.lens.place
        size: 13
        font.weight: Font.Medium
        elide: Text.ElideMiddle
    }

    Divider {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
    }
}
