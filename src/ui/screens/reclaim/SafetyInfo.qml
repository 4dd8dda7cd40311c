// SPDX-License-Identifier: MIT
// A popup at the info button that explains the safety grades.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.App
import Zelk.Controls

T.Popup {
    id: popover

    required property SafetyGuide guide

    width: 360
    height: page.implicitHeight + topPadding + bottomPadding
    margins: 8
    padding: 18
    focus: true
    // The content has the accessible name; the template's popup item would be a second node.
    onAboutToShow: contentItem.parent.Accessible.ignored = true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent

    background: PanelGround {
        radius: 14
    }

    Column {
        id: page

        width: popover.availableWidth
        spacing: 12

        focus: true
        Accessible.role: Accessible.Note
        Accessible.name: popover.guide.spoken

        Label {
            width: parent.width
            text: popover.guide.title
            size: 14
            font.weight: Font.DemiBold
            wrapMode: Text.WordWrap
        }

        Repeater {
            model: popover.guide

            Column {
                id: entry

                required property string grade
                required property color tint
                required property string meaning

                width: page.width
                spacing: 4

                Tag {
                    text: entry.grade
                    ink: entry.tint
                    tint: 0.22
                }

                Label {
                    width: parent.width
                    text: entry.meaning
                    size: 11
                    soft: true
                    wrapMode: Text.WordWrap
                }
            }
        }

        Divider {
            width: parent.width
        }

        Label {
            width: parent.width
            text: popover.guide.closing
            size: 11
            wrapMode: Text.WordWrap
        }
    }
}
