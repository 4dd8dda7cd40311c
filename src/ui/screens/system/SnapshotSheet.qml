// SPDX-License-Identifier: MIT
// Asks before snapshots are removed that the system removes without asking. There is no default button, so that a
// stray Return removes nothing. Escape cancels.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Sheet {
    id: sheet

    required property SnapshotsModel snapshots
    // Has the keyboard after a yes, when the button that led here rests.
    property Item waiting: null

    title: sheet.snapshots.question
    sheetWidth: Math.round(440 * TextScale.factor)
    visible: sheet.snapshots.asking
    onDismissed: sheet.snapshots.cancel()

    FocusScope {
        implicitHeight: column.implicitHeight
        focus: true

        Column {
            id: column

            width: parent.width
            spacing: 8

            Label {
                objectName: "snapshotQuestion"
                width: parent.width
                text: sheet.snapshots.question
                size: 17
                font.weight: Font.DemiBold
                wrapMode: Text.Wrap
                Accessible.role: Accessible.Heading
            }

            Label {
                objectName: "snapshotConsequence"
                width: parent.width
                text: sheet.snapshots.consequence
                size: 12
                soft: true
                wrapMode: Text.Wrap
                lineHeight: 1.25
            }

            Item {
                width: 1
                height: 8
            }

            Row {
                anchors.right: parent.right
                spacing: 10

                Button {
                    objectName: "keepSnapshots"
                    anchors.verticalCenter: parent.verticalCenter
                    focus: true
                    text: qsTr("Cancel")
                    onClicked: sheet.snapshots.cancel()
                }

                Button {
                    kind: Button.Primary
                    objectName: "removeSnapshots"
                    horizontalPadding: 20
                    verticalPadding: 10
                    alarming: true
                    text: sheet.snapshots.agreement
                    Accessible.description: sheet.snapshots.consequence
                    onClicked: {
                        sheet.before = sheet.waiting;
                        sheet.snapshots.confirm();
                    }
                }
            }
        }
    }
}
