// SPDX-License-Identifier: MIT
// The switch for permanent deletion instead of the Trash. Has a warning colour while on.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Item {
    id: place

    required property DryRunModel dryRun

    implicitHeight: Math.max(label.implicitHeight, toggle.implicitHeight)

    ToggleSwitch {
        id: toggle

        objectName: "permanentSwitch"
        anchors.verticalCenter: parent.verticalCenter
        text: qsTr("Delete permanently instead of moving to Trash — irreversible")
        labelled: false
        checked: place.dryRun.hardDelete
        enabled: place.dryRun.review
        onToggled: place.dryRun.hardDelete = checked
    }

    Label {
        id: label

        anchors.left: toggle.right
        anchors.leftMargin: 12
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: qsTr("Delete permanently instead of moving to Trash — irreversible")
        size: 12
        color: place.dryRun.hardDelete ? Theme.alertText : Theme.ink
        opacity: toggle.enabled ? 1 : 0.45
        wrapMode: Text.WordWrap
        mute: true

        TapHandler {
            enabled: toggle.enabled
            onTapped: toggle.flip(false)
        }
    }
}
