// SPDX-License-Identifier: MIT
// The welcome sheet: the current page, page dots, and buttons. The Left and Right keys change the page.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.App
import Zelk.Controls

FocusScope {
    id: panel

    required property WelcomeModel welcome

    readonly property alias primary: primaryButton

    // If the focused button disappears with its page, moves the focus to the primary button, visibly if it was visible
    // before.
    function turn(page) {
        const ringed = (panel.Window.activeFocusItem as T.AbstractButton)?.visualFocus ?? false;
        page();
        const stays = back.activeFocus && panel.welcome.backShown || skip.activeFocus && panel.welcome.skipShown;
        if (!stays)
            primaryButton.forceActiveFocus(ringed ? Qt.TabFocusReason : Qt.OtherFocusReason);
    }

    implicitHeight: column.implicitHeight + 2 * 8

    Keys.onLeftPressed: panel.turn(panel.welcome.back)
    Keys.onRightPressed: panel.turn(panel.welcome.next)

    Column {
        id: column

        y: 8
        width: panel.width
        spacing: 28

        Item {
            id: stage

            anchors.left: parent.left
            anchors.right: parent.right
            implicitHeight: pages.implicitHeight
            clip: true

            Row {
                id: pages

                objectName: "welcomePages"
                x: -panel.welcome.page * stage.width

                Behavior on x {
                    enabled: !Motion.reduced
                    NumberAnimation {
                        duration: panel.welcome.turnTime
                        easing: panel.welcome.turnEasing
                    }
                }

                Repeater {
                    model: panel.welcome.pages

                    WelcomePage {
                        width: stage.width
                        current: index === panel.welcome.page
                    }
                }
            }
        }

        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 8
            Accessible.role: Accessible.Paragraph
            Accessible.name: panel.welcome.position

            Repeater {
                model: panel.welcome.pages

                Rectangle {
                    id: dot

                    required property int index
                    readonly property bool current: dot.index === panel.welcome.page

                    width: 8
                    height: 8
                    radius: 4
                    color: dot.current ? Theme.accent : Theme.hairline
                    Behavior on color {
                        ColorAnimation {
                            duration: Motion.gentle
                        }
                    }
                }
            }
        }

        Item {
            anchors.left: parent.left
            anchors.right: parent.right
            implicitHeight: primaryButton.implicitHeight

            LinkButton {
                id: skip

                objectName: "skipButton"
                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Skip")
                size: 13
                textColor: Theme.inkSoft
                opacity: panel.welcome.skipShown ? 1 : 0
                enabled: panel.welcome.skipShown
                onClicked: panel.welcome.skip()
            }

            SecondaryButton {
                id: back

                objectName: "backButton"
                anchors.right: primaryButton.left
                anchors.rightMargin: 12
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Back")
                size: 13
                visible: panel.welcome.backShown
                onClicked: panel.turn(panel.welcome.back)
            }

            PrimaryButton {
                id: primaryButton

                objectName: "primaryButton"
                anchors.right: parent.right
                text: panel.welcome.primaryLabel
                focus: true
                onClicked: panel.turn(panel.welcome.pressPrimary)
            }
        }
    }
}
