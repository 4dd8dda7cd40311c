// SPDX-License-Identifier: MIT
// A control in each state, one per column. The states that need the pointer or the focus are applied by GalleryWall,
// which finds the items by their object names.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

Item {
    id: row

    // The label. If empty, the row has the column titles, and no states are applied.
    required property string name
    default required property Component specimen

    property var all: ["normal", "hovered", "pressed", "focused", "disabled"]
    // Whether items fill the width of their column.
    property bool filling: false
    // Adds a column with this text, unless empty.
    property string longText: ""

    readonly property var shown: row.longText === "" ? row.all : row.all.concat("long text")
    readonly property real nameWidth: Math.round(128 * TextScale.factor)
    readonly property real share: (row.width - row.nameWidth) / Math.max(6, row.shown.length)

    width: parent?.width ?? 0
    implicitHeight: Math.max(label.height, specimens.childrenRect.height)

    function place(index: int, item: Item) {
        const state = row.shown[index];
        item.objectName = row.name === "" ? "" : state;
        item.enabled = state !== "disabled";
        item.x = Qt.binding(() => ReadingDirection.mirrored ? specimens.width - index * row.share - item.width : index * row.share);
        if (row.filling || state === "long text")
            item.width = Qt.binding(() => row.share - 16);
        if (row.longText !== "" && state === "long text")
            (item as T.AbstractButton).text = row.longText;
    }

    Label {
        id: label

        anchors.left: parent.left
        width: row.nameWidth - 12
        text: row.name
        size: 11
        soft: true
        wrapMode: Text.Wrap
    }

    Item {
        id: specimens

        anchors.left: parent.left
        anchors.leftMargin: row.nameWidth
        width: row.width - row.nameWidth
        height: childrenRect.height

        Repeater {
            model: row.shown
            delegate: row.specimen
            onItemAdded: (index, item) => row.place(index, item)
        }
    }
}
