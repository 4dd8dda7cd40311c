// SPDX-License-Identifier: MIT
// A segmented control: one of a few options. Tab focuses the current segment; the arrow keys pick its neighbours.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

FocusScope {
    id: picker

    // The accessible name of the group.
    required property string label
    required property var options
    required property int current

    signal picked(int index)

    readonly property int inset: 3
    readonly property int corner: 7

    implicitWidth: row.wanted + 2 * picker.inset
    implicitHeight: row.implicitHeight + 2 * picker.inset
    opacity: picker.enabled ? 1 : 0.45

    Accessible.role: Accessible.Grouping
    Accessible.name: picker.label

    function pick(index: int) {
        const next = segments.itemAt(index) as T.AbstractButton;
        if (!next)
            return;
        next.forceActiveFocus(Qt.TabFocusReason);
        picker.picked(index);
    }

    Rectangle {
        anchors.fill: parent
        radius: picker.corner + picker.inset - 1
        color: Theme.hoverWash
        border.width: 1
        border.color: Theme.hairline
    }

    Row {
        id: row

        // Shrinks all segments by the same factor if they do not fit.
        readonly property real share: Math.max(0, picker.width - 2 * picker.inset) / Math.max(1, row.wanted)
        readonly property real wanted: {
            let sum = 0;
            for (let i = 0; i < segments.count; ++i)
                sum += segments.itemAt(i)?.implicitWidth ?? 0;
            return sum;
        }

        anchors.left: parent.left
        anchors.leftMargin: picker.inset
        y: picker.inset

        Repeater {
            id: segments

            model: picker.options

            RadioButton {
                id: segment

                required property int index
                required property string modelData

                // The first segment takes the focus if none is current.
                readonly property bool reached: segment.chosen || (segment.index === 0 && (picker.current < 0 || picker.current >= picker.options.length))

                text: segment.modelData
                chosen: segment.index === picker.current
                width: Math.floor(row.share * implicitWidth)
                implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
                implicitHeight: implicitContentHeight + topPadding + bottomPadding
                horizontalPadding: 14
                verticalPadding: 5
                focus: segment.reached
                activeFocusOnTab: segment.reached
                onClicked: picker.picked(segment.index)

                Keys.onLeftPressed: picker.pick(segment.index - ReadingDirection.rightward)
                Keys.onUpPressed: picker.pick(segment.index - 1)
                Keys.onRightPressed: picker.pick(segment.index + ReadingDirection.rightward)
                Keys.onDownPressed: picker.pick(segment.index + 1)

                background: Rectangle {
                    radius: picker.corner
                    color: segment.chosen ? Theme.surfaceHi : "transparent"
                    border.width: segment.chosen ? 1 : 0
                    border.color: Theme.hairline

                    HoverOverlay {
                        anchors.fill: parent
                        radius: picker.corner
                        control: segment
                    }
                }

                contentItem: ButtonLabel {
                    text: segment.text
                    color: segment.chosen ? Theme.ink : Theme.inkSoft
                }
            }
        }
    }
}
