// SPDX-License-Identifier: MIT
// A panel with padding and a border. Its height follows a single child's implicit height, or the extent of several.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Zelk.Controls

T.Pane {
    padding: 18
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: inside + topPadding + bottomPadding

    readonly property real inside: contentChildren.length === 1 ? implicitContentHeight : contentItem.childrenRect.height

    background: Rectangle {
        radius: 16
        color: Theme.surface
        border.width: 1
        border.color: Theme.hairline
    }
}
