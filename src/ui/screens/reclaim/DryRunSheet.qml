// SPDX-License-Identifier: MIT
// The review before a clean-up, its progress, and its result: what was removed and what was skipped, and the choice to
// empty the Trash.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Sheet {
    id: sheet

    required property DryRunModel dryRun

    title: sheet.dryRun.done ? result.heading : review.title
    // Permanent deletion has no default button, so that a stray Return does not confirm it.
    primary: sheet.dryRun.emptyable ? keep : sheet.dryRun.done ? done : sheet.dryRun.hardDelete ? null : review.confirm
    closable: sheet.dryRun.closable
    sheetWidth: 620
    sheetHeight: 480
    visible: true
    onDismissed: sheet.dryRun.close()

    FocusScope {
        implicitHeight: Math.max(review.visible ? review.implicitHeight : 0, result.visible ? result.implicitHeight : 0)
        focus: true

        DryRunReview {
            id: review

            anchors.fill: parent
            dryRun: sheet.dryRun
            visible: !sheet.dryRun.done
            enabled: visible
            focus: visible
        }

        FocusScope {
            id: result

            readonly property bool emptied: sheet.dryRun.done && !sheet.dryRun.emptyable
            readonly property string heading: result.emptied ? qsTr("Space reclaimed") : qsTr("Moved to the Trash")
            // Read together with the button that receives the focus.
            readonly property string spoken: AccessibleText.joined([result.heading, sheet.dryRun.result])

            property bool unfolded: false

            implicitHeight: column.implicitHeight + 24 + Math.max(keep.implicitHeight, empty.implicitHeight)
            anchors.fill: parent
            visible: sheet.dryRun.done
            enabled: visible
            focus: visible

            Column {
                id: column

                anchors.horizontalCenter: parent.horizontalCenter
                y: Math.max(0, (parent.height - 24 - empty.implicitHeight - implicitHeight) / 2)
                width: Math.min(440, parent.width)
                spacing: 8

                SymbolItem {
                    anchors.horizontalCenter: parent.horizontalCenter
                    name: "checkmark.circle.fill"
                    color: Theme.gradeSafe
                    size: 56
                }

                Label {
                    width: parent.width
                    topPadding: 12
                    text: result.heading
                    size: 20
                    font.weight: Font.Bold
                    horizontalAlignment: Text.AlignHCenter
                    wrapMode: Text.WordWrap
                    Accessible.role: Accessible.Heading
                }

                Label {
                    objectName: "cleanupResult"
                    width: parent.width
                    text: sheet.dryRun.result
                    size: 14
                    font.weight: Font.Medium
                    horizontalAlignment: Text.AlignHCenter
                    wrapMode: Text.WordWrap
                }

                Button {
                    kind: Button.Link
                    objectName: "showSkipped"
                    anchors.horizontalCenter: parent.horizontalCenter
                    text: result.unfolded ? qsTr("Hide what was skipped") : qsTr("Show what was skipped")
                    visible: sheet.dryRun.anySkipped
                    onClicked: result.unfolded = !result.unfolded
                }

                RowList {
                    id: list

                    objectName: "skippedList"
                    width: parent.width
                    height: Math.min(contentHeight, 132)
                    name: qsTr("What was skipped")
                    model: result.unfolded ? sheet.dryRun.skipped() : []
                    visible: result.unfolded
                    enabled: visible
                    spacing: 6

                    delegate: SkippedRow {
                        ringed: list.ringed && list.currentIndex === index
                        onPressed: list.take(index)
                    }
                }

                Label {
                    width: parent.width
                    text: result.emptied ? qsTr("The Trash was emptied. Your free space is now updated.") : qsTr("Items were moved to the Trash, so they're recoverable — but your free space won't change until the Trash is emptied.")
                    size: 12
                    soft: true
                    horizontalAlignment: Text.AlignHCenter
                    wrapMode: Text.WordWrap
                    lineHeight: 1.25
                }
            }

            Row {
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                spacing: 10

                Spinner {
                    anchors.verticalCenter: parent.verticalCenter
                    visible: sheet.dryRun.emptying
                }

                Button {
                    id: keep

                    objectName: "keepInTrash"
                    anchors.verticalCenter: parent.verticalCenter
                    text: qsTr("Keep in Trash")
                    Accessible.description: result.spoken
                    visible: sheet.dryRun.emptyable
                    enabled: !sheet.dryRun.emptying
                    focus: visible
                    onClicked: sheet.dryRun.finish()
                }

                Button {
                    id: empty

                    kind: Button.Primary
                    objectName: "emptyTrash"
                    horizontalPadding: 20
                    verticalPadding: 10
                    text: sheet.dryRun.emptying ? qsTr("Emptying…") : qsTr("Empty Trash & free space")
                    visible: sheet.dryRun.emptyable
                    enabled: !sheet.dryRun.emptying
                    onClicked: sheet.dryRun.emptyTrash()
                }

                Button {
                    id: done

                    kind: Button.Primary
                    objectName: "cleanupDone"
                    horizontalPadding: 20
                    verticalPadding: 10
                    text: qsTr("Done")
                    Accessible.description: result.spoken
                    visible: !sheet.dryRun.emptyable
                    focus: visible
                    onClicked: sheet.dryRun.finish()
                }
            }
        }
    }

    // An item that was skipped, with the reason.
    component SkippedRow: ListRow {
        id: row

        required property int index
        required property var modelData

        implicitHeight: texts.implicitHeight + 2 * 4
        spoken: AccessibleText.joined([row.modelData.name, row.modelData.reason])

        FocusRing {
            shown: row.ringed
            corner: 6
        }

        TwoLines {
            id: texts

            x: 8
            y: 4
            width: row.width - 2 * 8
            title: row.modelData.name
            note: row.modelData.reason
            size: 12
            weight: Font.Medium
            noteWraps: true
            elide: Text.ElideMiddle
            mute: true
        }
    }
}
