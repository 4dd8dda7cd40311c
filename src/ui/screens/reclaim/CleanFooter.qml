// SPDX-License-Identifier: MIT
// The size of the selection, and the button that continues.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.Controls

Rectangle {
    id: footer

    required property string line
    property string figure: ""
    required property string action
    property bool ready: true

    signal pressed

    color: Theme.groundHi
    implicitHeight: Math.max(texts.implicitHeight, button.implicitHeight) + 2 * 14

    Divider {
        width: parent.width
    }

    TwoLines {
        id: texts

        anchors.left: parent.left
        anchors.leftMargin: 26
        anchors.right: button.left
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        title: footer.line
        note: footer.figure
        weight: Font.DemiBold
    }

    Button {
        id: button

        kind: Button.Primary
        objectName: "reviewButton"
        anchors.right: parent.right
        anchors.rightMargin: 26
        anchors.verticalCenter: parent.verticalCenter
        horizontalPadding: 22
        verticalPadding: 11
        text: footer.action
        enabled: footer.ready
        onClicked: footer.pressed()
    }
}
