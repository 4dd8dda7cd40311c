// SPDX-License-Identifier: MIT
// Reserves space for a popup.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

Item {
    required property T.Popup popup

    objectName: "opened"
}
