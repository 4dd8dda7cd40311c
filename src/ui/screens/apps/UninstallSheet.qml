// SPDX-License-Identifier: MIT
// Lists what goes with an application, and what becomes of each part. Return agrees if all of it goes to the Trash;
// otherwise there is no default button, so that a stray Return removes nothing.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Sheet {
    id: sheet

    required property UninstallModel removal

    title: sheet.removal.title
    primary: sheet.removal.undoable ? confirmButton : null
    sheetWidth: Math.round(500 * TextScale.factor)
    visible: sheet.removal.open
    onDismissed: sheet.removal.cancel()

    FocusScope {
        // As high as its rows, up to some.
        readonly property real roomForRows: Math.min(parts.contentHeight + parts.topMargin + parts.bottomMargin + 2, Math.round(250 * TextScale.factor))

        implicitHeight: heading.implicitHeight + roomForRows + buttons.implicitHeight + 14 + 20
        focus: true

        Column {
            id: heading

            width: parent.width
            spacing: 4

            Label {
                width: parent.width
                text: sheet.removal.title
                size: 17
                font.weight: Font.DemiBold
                wrapMode: Text.Wrap
                Accessible.role: Accessible.Heading
            }

            Label {
                objectName: "uninstallLine"
                width: parent.width
                text: sheet.removal.line
                size: 12
                soft: true
                wrapMode: Text.Wrap
                lineHeight: 1.25
            }
        }

        Rectangle {
            anchors.top: heading.bottom
            anchors.topMargin: 14
            anchors.bottom: buttons.top
            anchors.bottomMargin: 20
            width: parent.width
            radius: 12
            color: Theme.ground
            border.width: 1
            border.color: Theme.hairline

            RowList {
                id: parts

                objectName: "uninstallList"
                anchors.fill: parent
                anchors.margins: 1
                topMargin: 6
                bottomMargin: 6
                focus: true
                name: qsTr("What will go")
                model: sheet.removal.rows
                delegate: PartRow {
                    ringed: parts.ringed && ListView.isCurrentItem
                    onPressed: parts.take(index)
                }
            }
        }

        Row {
            id: buttons

            anchors.right: parent.right
            anchors.bottom: parent.bottom
            spacing: 10

            Spinner {
                objectName: "uninstallSpinner"
                anchors.verticalCenter: parent.verticalCenter
                visible: sheet.removal.loading
            }

            Button {
                objectName: "cancelUninstall"
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Cancel")
                onClicked: sheet.removal.cancel()
            }

            Button {
                id: confirmButton

                kind: Button.Primary
                objectName: "confirmUninstall"
                horizontalPadding: 20
                verticalPadding: 10
                alarming: !sheet.removal.undoable
                enabled: sheet.removal.confirmable
                text: sheet.removal.agreement
                Accessible.description: sheet.removal.line
                onClicked: sheet.removal.confirm()
            }
        }
    }

    component PartRow: ListRow {
        id: part

        required property int index
        required property string symbol
        required property string name
        required property string figure
        required property string fate
        required spoken

        implicitHeight: Math.max(texts.implicitHeight, figureText.implicitHeight) + 2 * 6

        FocusRing {
            shown: part.ringed
            corner: 8
        }

        SymbolItem {
            id: sign

            anchors.left: parent.left
            anchors.leftMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            name: part.symbol
            color: Theme.inkSoft
            size: Math.round(15 * TextScale.factor)
        }

        Column {
            id: texts

            anchors.left: sign.right
            anchors.leftMargin: 12
            anchors.right: figureText.left
            anchors.rightMargin: 16
            anchors.verticalCenter: parent.verticalCenter
            spacing: 1

            Label {
                width: parent.width
                text: part.name
                size: 13
                elide: Text.ElideMiddle
                mute: true
            }

            Label {
                width: parent.width
                visible: text !== ""
                text: part.fate
                size: 10
                soft: true
                elide: Text.ElideMiddle
                mute: true
            }
        }

        Label {
            id: figureText

            anchors.right: parent.right
            anchors.rightMargin: 16
            anchors.verticalCenter: parent.verticalCenter
            text: part.figure
            size: 12
            font.weight: Font.Medium
            mute: true
        }
    }
}
