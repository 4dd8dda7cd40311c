// SPDX-License-Identifier: MIT
// Room for what opens over everything else.
pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

Item {
    required property T.Popup popup

    objectName: "opened"
}
