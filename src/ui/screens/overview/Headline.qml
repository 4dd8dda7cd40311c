// SPDX-License-Identifier: MIT
// The reclaimable bytes in large type, and the button to review them.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Item {
    id: headline

    required property FindingsModel findings

    implicitHeight: Math.max(words.implicitHeight, review.visible ? review.implicitHeight : 0)

    Column {
        id: words

        anchors.left: parent.left
        anchors.right: review.visible ? review.left : parent.right
        anchors.rightMargin: review.visible ? 16 : 0
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4

        Label {
            width: parent.width
            text: headline.findings.title
            size: headline.findings.reviewable ? 13 : 26
            soft: headline.findings.reviewable
            font.weight: headline.findings.reviewable ? Font.Medium : Font.Bold
            Accessible.role: Accessible.Heading
        }

        AnimatedNumber {
            value: headline.findings.recoverable
            visible: headline.findings.reviewable
            pixelSize: 34
            bold: true
        }

        Label {
            width: parent.width
            text: headline.findings.line
            size: 12
            soft: true
            wrapMode: Text.Wrap
        }

        Label {
            objectName: "unreadLine"
            width: parent.width
            text: headline.findings.unreadLine
            visible: text !== ""
            size: 12
            soft: true
            wrapMode: Text.Wrap
        }
    }

    PrimaryButton {
        id: review

        objectName: "reviewButton"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: headline.findings.reviewable
        text: qsTr("Review  →")
        onClicked: headline.findings.review()
    }
}
