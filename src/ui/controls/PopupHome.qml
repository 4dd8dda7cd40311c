// SPDX-License-Identifier: MIT
// Ties a popup to an item: closes it when the item is hidden, and returns the focus to the item when it closes.
pragma ComponentBehavior: Bound

import QtQml
import QtQuick
import QtQuick.Templates as T

QtObject {
    id: place

    required property Item home
    required property T.Popup popup

    readonly property bool inSight: place.home.visible
    onInSightChanged: place.popup.close()

    readonly property Connections _end: Connections {
        target: place.popup

        function onClosed() {
            if (place.inSight && place.home.enabled)
                place.home.forceActiveFocus(Qt.PopupFocusReason);
        }
    }
}
