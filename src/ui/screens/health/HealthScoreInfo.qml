// SPDX-License-Identifier: MIT
// A button and the popup that it opens, which explains the score and its grades.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.App
import Zelk.Controls

IconButton {
    id: info

    required property HealthScreenModel health

    readonly property bool asked: info.health.showScoreInfo
    readonly property string meaning: SystemTexts.of(SystemTexts.HealthScoreMeaning)

    objectName: "scoreInfo"
    symbol: "info.circle"
    size: 16
    text: SystemTexts.of(SystemTexts.HealthScoreTitle)
    onClicked: info.health.showScoreInfo = !info.health.showScoreInfo
    onAskedChanged: info.asked ? popover.open() : popover.close()

    T.Popup {
        id: popover

        x: ReadingDirection.mirrored ? info.width - width : 0
        y: info.height + 6
        width: 300 * TextScale.factor
        height: page.implicitHeight + topPadding + bottomPadding
        margins: 8
        padding: 18
        focus: true
        closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent
        // The content has the accessible name; the template's popup item would be a second node.
        onAboutToShow: contentItem.parent.Accessible.ignored = true
        // Nobody leaves it open behind with the Tab key. (A press on the button is left to the button.)
        onActiveFocusChanged: {
            if (!popover.activeFocus && !(info.activeFocus && info.focusReason === Qt.MouseFocusReason))
                info.health.showScoreInfo = false;
        }
        onClosed: info.health.showScoreInfo = false

        background: PanelGround {
            radius: 14
        }

        Column {
            id: page

            width: popover.availableWidth
            spacing: 12

            focus: true
            Accessible.role: Accessible.Note
            Accessible.name: AccessibleText.joined([info.text, info.meaning])

            Label {
                width: parent.width
                text: info.text
                size: 14
                font.weight: Font.DemiBold
                wrapMode: Text.Wrap
            }

            Label {
                width: parent.width
                text: info.meaning
                size: 12
                soft: true
                wrapMode: Text.Wrap
            }

            Column {
                width: parent.width
                spacing: 6

                Accessible.role: Accessible.List
                Accessible.name: SystemTexts.of(SystemTexts.HealthCaption)

                Repeater {
                    model: info.health.grades

                    GradeRow {
                        width: page.width
                        current: index === info.health.gradeIndex
                    }
                }
            }

            Button {
                objectName: "learnMore"
                anchors.left: parent.left
                symbol: "arrow.right.circle.fill"
                text: qsTr("Learn more")
                onClicked: info.health.learnMore()
            }
        }
    }

    PopupHome {
        home: info
        popup: popover
    }

    component GradeRow: Item {
        id: row

        required property int index
        required property healthGradeFace modelData
        required property bool current

        implicitHeight: Math.max(dot.height, label.implicitHeight)

        Accessible.role: Accessible.ListItem
        Accessible.name: row.modelData.label
        Accessible.selectable: true
        Accessible.selected: row.current

        Rectangle {
            id: dot

            anchors.left: parent.left
            objectName: "gradeDot"
            anchors.verticalCenter: parent.verticalCenter
            width: 14
            height: 14
            radius: 7
            color: row.modelData.color

            Rectangle {
                objectName: "currentRing"
                anchors.fill: parent
                radius: parent.radius
                color: "transparent"
                border.width: 2
                border.color: Qt.rgba(1, 1, 1, 0.6)
                visible: row.current
            }
        }

        Label {
            id: label

            anchors.left: dot.right
            anchors.leftMargin: 10
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: row.modelData.label
            size: 12
            font.weight: row.current ? Font.DemiBold : Font.Normal
            wrapMode: Text.Wrap
            mute: true
        }
    }
}
