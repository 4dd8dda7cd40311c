// SPDX-License-Identifier: MIT
// The welcome sheet: the current page, page dots, and buttons. The Left and Right keys change the page.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.App
import Zelk.Charts
import Zelk.Controls

FocusScope {
    id: panel

    required property WelcomeModel welcome

    readonly property alias primary: primaryButton

    // If the focused button disappears with its page, moves the focus to the primary button, visibly if it was visible
    // before.
    function turn(move) {
        const ringed = (panel.Window.activeFocusItem as T.AbstractButton)?.visualFocus ?? false;
        move();
        const stays = back.activeFocus && panel.welcome.backShown || skip.activeFocus && !panel.welcome.onLastPage;
        if (!stays)
            primaryButton.forceActiveFocus(ringed ? Qt.TabFocusReason : Qt.OtherFocusReason);
    }

    implicitHeight: column.implicitHeight + 2 * 8

    Keys.onLeftPressed: panel.turn(ReadingDirection.mirrored ? panel.welcome.next : panel.welcome.back)
    Keys.onRightPressed: panel.turn(ReadingDirection.mirrored ? panel.welcome.back : panel.welcome.next)

    Column {
        id: column

        y: 8
        width: panel.width
        spacing: 28

        Item {
            id: stage

            width: parent.width
            implicitHeight: pages.implicitHeight
            clip: true

            Row {
                id: pages

                objectName: "welcomePages"
                // The first page is at the end where reading begins.
                x: ReadingDirection.mirrored ? (panel.welcome.page + 1) * stage.width - pages.width : -panel.welcome.page * stage.width

                Behavior on x {
                    enabled: !Motion.reduced
                    NumberAnimation {
                        duration: panel.welcome.turnTime
                        easing: panel.welcome.turnEasing
                    }
                }

                Repeater {
                    model: panel.welcome.pages

                    // A disc, a title and a text. Pages other than the current one are hidden from screen readers, even
                    // while they slide out.
                    Item {
                        id: page

                        required property int index
                        required property introPage modelData
                        readonly property bool current: page.index === panel.welcome.page

                        width: stage.width
                        implicitHeight: body.implicitHeight

                        opacity: page.current ? 1 : 0
                        Behavior on opacity {
                            NumberAnimation {
                                duration: Motion.gentle
                            }
                        }

                        Column {
                            id: body

                            anchors.horizontalCenter: parent.horizontalCenter
                            width: page.width
                            spacing: 12

                            PaintedLayer {
                                anchors.horizontalCenter: parent.horizontalCenter
                                kind: PaintedLayer.IntroDisc
                                color: page.modelData.tint

                                SymbolItem {
                                    anchors.centerIn: parent
                                    name: page.modelData.symbol
                                    color: "white"
                                    size: 44
                                }
                            }

                            TwoLines {
                                width: parent.width
                                topPadding: 16
                                spacing: 12
                                title: page.modelData.title
                                note: page.modelData.body
                                size: 26
                                noteSize: 14
                                weight: Font.Bold
                                wraps: true
                                alignment: Text.AlignHCenter
                                lineHeight: 1.35
                                isHeading: true
                                mute: !page.current
                            }
                        }
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
                    color: dot.current ? Theme.accent : Qt.alpha(Theme.inkSoft, 0.5)
                    Behavior on color {
                        ColorAnimation {
                            duration: Motion.gentle
                        }
                    }
                }
            }
        }

        Item {
            width: parent.width
            implicitHeight: primaryButton.implicitHeight

            Button {
                id: skip

                kind: Button.Link
                objectName: "skipButton"
                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Skip")
                size: 13
                textColor: Theme.inkSoft
                opacity: panel.welcome.onLastPage ? 0 : 1
                enabled: !panel.welcome.onLastPage
                onClicked: panel.welcome.skip()
            }

            Button {
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

            Button {
                id: primaryButton

                kind: Button.Primary
                objectName: "primaryButton"
                anchors.right: parent.right
                text: panel.welcome.onLastPage ? qsTr("Get Started") : qsTr("Next")
                focus: true
                onClicked: panel.turn(panel.welcome.pressPrimary)
            }
        }
    }
}
