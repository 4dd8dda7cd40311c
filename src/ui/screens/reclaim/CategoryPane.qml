// SPDX-License-Identifier: MIT
// The categories as a list and as a bubble map; both select them.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Charts
import Zelk.Controls

FocusScope {
    id: pane

    required property CategoryList categories

    Item {
        id: mapSide

        anchors.left: parent.left
        anchors.top: parent.top
        anchors.bottom: cleanFooter.top
        width: Math.min(340 * TextScale.factor, pane.width * 0.6)

        CategoryHead {
            id: head

            width: parent.width
            categories: pane.categories
        }

        Divider {
            id: rule

            anchors.top: head.bottom
            width: parent.width
        }

        RowList {
            id: list

            objectName: "categoryList"
            anchors.top: rule.bottom
            anchors.bottom: parent.bottom
            width: parent.width
            topMargin: 8
            bottomMargin: 8
            focus: true
            name: qsTr("Categories")
            model: pane.categories

            Keys.onSpacePressed: event => list.press(event.isAutoRepeat)
            Keys.onReturnPressed: event => list.press(event.isAutoRepeat)
            Keys.onEnterPressed: event => list.press(event.isAutoRepeat)

            function press(again: bool) {
                if (!again)
                    pane.categories.toggle(list.currentIndex);
            }

            delegate: CategoryRow {
                ringed: list.ringed && ListView.isCurrentItem
                onPressed: row => {
                    list.take(row);
                    pane.categories.toggle(row);
                }
            }
        }
    }

    Rectangle {
        id: edge

        anchors.left: mapSide.right
        anchors.top: parent.top
        anchors.bottom: cleanFooter.top
        width: 1
        color: Theme.hairline
    }

    BubbleChart {
        objectName: "categoryMap"
        anchors.left: edge.right
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: cleanFooter.top
        anchors.margins: 8
        name: qsTr("Map of the categories")
        model: pane.categories.bubbles
    }

    CleanFooter {
        id: cleanFooter

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        line: pane.categories.footer
        action: qsTr("Review & Clean")
        ready: pane.categories.reviewable
        onPressed: pane.categories.review()
    }
}
