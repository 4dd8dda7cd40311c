// SPDX-License-Identifier: MIT
// The surveyed bytes by type, and below them the Trash.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Charts
import Zelk.Controls

Card {
    id: card

    required property FindingsModel findings
    required property TrashBannerModel trash

    Column {
        width: card.availableWidth
        spacing: 14

        Eyebrow {
            text: qsTr("Scanned storage")
            Accessible.role: Accessible.Heading
        }

        StorageRibbon {
            width: parent.width
            segments: card.findings.segments
            freeBytes: card.findings.freeBytes
        }

        Divider {
            width: parent.width
        }

        TrashBanner {
            width: parent.width
            trash: card.trash
        }
    }
}
