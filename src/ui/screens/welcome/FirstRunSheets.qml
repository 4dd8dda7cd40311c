// SPDX-License-Identifier: MIT
// The welcome sheet and the access sheet over the main window. Escape takes the exit that each offers, so that closing
// counts as an answer.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Item {
    id: sheets

    required property FirstRunModel firstRun

    Sheet {
        id: first

        // Shows the second sheet only after the first one has closed and returned the focus.
        property bool gone: true

        onAboutToShow: first.gone = false
        onClosed: first.gone = true

        title: sheets.firstRun.welcome.title
        visible: sheets.firstRun.showWelcome
        sheetWidth: Math.round(480 * TextScale.factor)
        primary: welcomePanel.primary
        onDismissed: sheets.firstRun.welcome.skip()

        WelcomeView {
            id: welcomePanel

            welcome: sheets.firstRun.welcome
            focus: true
        }
    }

    Sheet {
        id: accessSheet

        title: SystemTexts.of(SystemTexts.AccessTitle)
        visible: sheets.firstRun.showOnboarding && first.gone
        sheetWidth: 460
        sheetHeight: Math.max(420, panel.implicitHeight + topPadding + bottomPadding)
        primary: panel.primary
        onDismissed: sheets.firstRun.access.continueWithoutIt()

        AccessPanel {
            id: panel

            access: sheets.firstRun.access
            focus: true
        }
    }

    // Visible only while its window is, so that a closed window does not keep checking.
    Binding {
        target: sheets.firstRun.access
        property: "shown"
        value: accessSheet.visible && (sheets.Window.window?.visible ?? false)
    }
    Component.onDestruction: sheets.firstRun.access.shown = false
}
