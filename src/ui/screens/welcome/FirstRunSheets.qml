// SPDX-License-Identifier: MIT
// What the first run, and every run without access, puts over the main window. Escape goes the way out that each of the
// two offers: nothing is closed that would not count as answered.
pragma ComponentBehavior: Bound

import QtQuick
import Zelk.App
import Zelk.Controls

Item {
    id: sheets

    required property FirstRunModel firstRun

    Sheet {
        id: first

        // The one sheet gives the keyboard back before the other takes it.
        property bool gone: true

        onAboutToShow: first.gone = false
        onClosed: first.gone = true

        title: sheets.firstRun.welcome.title
        visible: sheets.firstRun.showWelcome
        sheetWidth: Math.round(480 * TextScale.factor)
        primary: welcomePanel.primary
        onDismissed: sheets.firstRun.welcome.skip()

        WelcomePanel {
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

    // It is on the screen while its window is too: nobody waits behind a closed one.
    Binding {
        target: sheets.firstRun.access
        property: "shown"
        value: accessSheet.visible && (sheets.Window.window?.visible ?? false)
    }
    Component.onDestruction: sheets.firstRun.access.shown = false
}
