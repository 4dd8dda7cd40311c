// SPDX-License-Identifier: MIT
// The review before a clean-up, its progress, and its result.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Sheet {
    id: sheet

    required property DryRunModel dryRun

    title: sheet.dryRun.done ? sheet.dryRun.heading : sheet.dryRun.title
    // Permanent deletion has no default button, so that a stray Return does not confirm it.
    primary: sheet.dryRun.done ? result.primary : sheet.dryRun.hardDelete ? null : review.confirm
    closable: sheet.dryRun.closable
    sheetWidth: 620
    sheetHeight: 480
    visible: true
    onDismissed: sheet.dryRun.close()

    FocusScope {
        implicitHeight: Math.max(review.visible ? review.implicitHeight : 0, result.visible ? result.implicitHeight : 0)
        focus: true

        DryRunReview {
            id: review

            anchors.fill: parent
            dryRun: sheet.dryRun
            visible: !sheet.dryRun.done
            enabled: visible
            focus: visible
        }

        DryRunResult {
            id: result

            anchors.fill: parent
            dryRun: sheet.dryRun
            visible: sheet.dryRun.done
            enabled: visible
            focus: visible
        }
    }
}
