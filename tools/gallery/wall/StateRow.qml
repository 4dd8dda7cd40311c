// SPDX-License-Identifier: MIT
// One component in its states, a column each. Only those that it cannot be given are left to the pointer and the
// keyboard, which find them by their names.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

Item {
    id: row

    // Without one it is the heads of the columns, to which nothing is done.
    required property string name
    default required property Component specimen

    property var all: ["normal", "hovered", "pressed", "focused", "disabled"]
    // As wide as the column.
    property bool filling: false
    // What a column more is for.
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
        item.x = Qt.binding(() => index * row.share);
        if (row.filling || state === "long text")
            item.width = Qt.binding(() => row.share - 16);
        if (row.longText !== "" && state === "long text")
            (item as T.AbstractButton).text = row.longText;
    }

    Words {
        id: label

        width: row.nameWidth - 12
        text: row.name
        size: 11
        soft: true
        wrapMode: Text.Wrap
    }

    Item {
        id: specimens

        x: row.nameWidth
        width: row.width - x
        height: childrenRect.height

        Repeater {
            model: row.shown
            delegate: row.specimen
            onItemAdded: (index, item) => row.place(index, item)
        }
    }
}
