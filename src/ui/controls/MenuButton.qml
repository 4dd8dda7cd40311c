// SPDX-License-Identifier: MIT
// A button that opens a menu below it. Its children become the menu's rows.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

BaseButton {
    id: button

    // The label beside the button, as the first part of the accessible name.
    property string said: ""
    default property alias rows: panel.contentData

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    horizontalPadding: 8
    verticalPadding: 4
    opacity: button.enabled ? 1 : 0.45

    Accessible.name: AccessibleText.joined([button.said, button.text])
    Accessible.description: qsTr("opens a menu")

    onClicked: panel.visible ? panel.close() : panel.popup(button, ReadingDirection.mirrored ? button.width - panel.width : 0, button.height + 4)
    Keys.onDownPressed: button.clicked()

    background: HoverOverlay {
        radius: 6
        control: button
    }

    contentItem: Row {
        spacing: 6

        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: button.text
            size: 11
            font.weight: Font.Medium
            mute: true
        }

        SymbolItem {
            anchors.verticalCenter: parent.verticalCenter
            name: "chevron.down"
            color: Theme.inkSoft
            size: Math.round(9 * TextScale.factor)
        }
    }

    MenuPanel {
        id: panel

        title: button.Accessible.name
        // A press on the button is left to the button, which closes the menu.
        closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent
    }

    PopupHome {
        home: button
        popup: panel
    }
}
