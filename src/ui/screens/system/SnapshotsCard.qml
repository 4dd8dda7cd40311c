// SPDX-License-Identifier: MIT
// The local snapshots, each with its button to delete it, and above them the button that leaves the choice to the
// system. While something runs or loads, the keyboard waits at the button that reloads.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

SystemCard {
    id: card

    required property SnapshotsModel snapshots

    title: qsTr("Local snapshots")
    // The arrow ends at the margin.
    overhang: reloadButton.overhang
    trailing: Row {
        spacing: 12

        Spinner {
            objectName: "snapshotSpinner"
            anchors.verticalCenter: parent.verticalCenter
            visible: card.snapshots.acting
            Accessible.role: Accessible.ProgressBar
            Accessible.name: qsTr("Removing snapshots")
            Accessible.description: qsTr("waiting for the system…")
        }

        IconButton {
            id: reloadButton

            objectName: "reloadSnapshots"
            symbol: "arrow.clockwise"
            text: qsTr("Reload the local snapshots")
            onClicked: card.snapshots.reload()
        }
    }

    // The button that began a removal rests now.
    function rest(byKey: bool) {
        if (card.snapshots.acting)
            reloadButton.forceActiveFocus(byKey ? Qt.TabFocusReason : Qt.MouseFocusReason);
    }

    // The keyboard goes on at the first of the new rows, which stands where the button stood.
    function showMore(byKey: bool) {
        const first = repeater.count;
        card.snapshots.showMore();
        rows.forceLayout();
        repeater.itemAt(first)?.nextItemInFocusChain().forceActiveFocus(byKey ? Qt.TabFocusReason : Qt.MouseFocusReason);
    }

    Item {
        id: area

        // The place of the list stays while it loads, so that the page does not jump.
        property real kept: 0

        width: parent.width
        implicitHeight: card.snapshots.loading ? Math.max(area.kept, bar.implicitHeight + 2 * 16) : list.implicitHeight

        ModuleProgressBar {
            id: bar

            objectName: "snapshotsLoading"
            anchors.horizontalCenter: parent.horizontalCenter
            y: 16
            visible: card.snapshots.loading
            tint: Theme.accent
            name: card.title
            doing: qsTr("Reading the snapshots…")
        }

        FocusScope {
            id: list

            objectName: "snapshotList"
            width: parent.width
            implicitHeight: column.implicitHeight
            visible: !card.snapshots.loading
            enabled: visible
            onImplicitHeightChanged: {
                if (list.visible)
                    area.kept = list.implicitHeight;
            }
            onVisibleChanged: {
                if (!list.visible && list.focus)
                    reloadButton.focus = true;
            }

            Column {
                id: column

                width: parent.width
                spacing: 12

                Label {
                    width: parent.width
                    visible: card.snapshots.nothing
                    text: qsTr("No local snapshots. Nothing to thin.")
                    size: 13
                    soft: true
                    wrapMode: Text.Wrap
                }

                Label {
                    objectName: "snapshotNote"
                    width: parent.width
                    visible: text !== ""
                    text: card.snapshots.note
                    size: 12
                    soft: true
                    wrapMode: Text.Wrap
                    lineHeight: 1.25
                }

                ThinRow {
                    width: parent.width
                    visible: card.snapshots.thinnable
                    snapshots: card.snapshots
                    onPressed: byKey => {
                        card.snapshots.thin();
                        card.rest(byKey);
                    }
                }

                Column {
                    id: rows

                    width: parent.width
                    visible: card.snapshots.listed

                    Accessible.role: Accessible.List
                    Accessible.name: card.title

                    Repeater {
                        id: repeater

                        model: card.snapshots.rows

                        SnapshotRow {
                            width: rows.width
                            resting: card.snapshots.acting
                            onPressed: byKey => {
                                card.snapshots.remove(index);
                                card.rest(byKey);
                            }
                        }
                    }
                }

                MoreRow {
                    width: parent.width
                    visible: card.snapshots.more !== ""
                    line: card.snapshots.more
                    onPressed: byKey => card.showMore(byKey)
                }
            }
        }
    }

    SnapshotSheet {
        snapshots: card.snapshots
        waiting: reloadButton
    }

    component MoreRow: Item {
        id: moreRow

        required property string line

        signal pressed(bool byKey)

        implicitHeight: Math.max(rowsLeft.implicitHeight, moreButton.implicitHeight)

        Label {
            id: rowsLeft

            anchors.left: parent.left
            anchors.right: moreButton.left
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            text: moreRow.line
            size: 12
            soft: true
            wrapMode: Text.Wrap
        }

        Button {
            id: moreButton

            objectName: "showMoreSnapshots"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Show more")
            Accessible.description: moreRow.line
            onClicked: moreRow.pressed(moreButton.visualFocus)
        }
    }

    component ThinRow: Rectangle {
        id: thinRow

        required property SnapshotsModel snapshots

        signal pressed(bool byKey)

        implicitHeight: Math.max(advice.implicitHeight, thinButton.implicitHeight) + 2 * 12
        radius: 12
        color: Theme.surfaceHi

        Label {
            id: advice

            anchors.left: parent.left
            anchors.leftMargin: 16
            anchors.right: thinButton.left
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            text: SystemTexts.of(SystemTexts.PreferThinning)
            size: 12
            wrapMode: Text.Wrap
        }

        Button {
            id: thinButton

            objectName: "thinSnapshots"
            anchors.right: parent.right
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Thin 5 GB")
            enabled: !thinRow.snapshots.acting
            onClicked: thinRow.pressed(thinButton.visualFocus)
        }
    }
}
