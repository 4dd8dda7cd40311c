// SPDX-License-Identifier: MIT
#include "ui/shell/Shell.h"

#include <QGuiApplication>

#include "ui/shell/Application.h"
#include "ui/shell/NativeApplication.h"
#include "ui/shell/NativeMenuBar.h"
#include "ui/shell/RootModel.h"

namespace zelk {

Shell::Shell(AppModel& app, const WindowServices& services)
    : quit_(services.quit),
      main_(app, services),
      statusMenu_(
          app, [this] { openZelk(); }, services.quit),
      statusItem_(statusMenu_, services.tray()) {
    QGuiApplication::setQuitOnLastWindowClosed(false);
#ifdef Q_OS_MACOS
    menuBar_ = makeNativeMenuBar(main_.commands());
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, &Shell::followApplicationState);
#endif
    connect(&main_.window(), &QWindow::visibleChanged, this, &Shell::followMainWindow);
    connect(&statusItem_, &StatusItem::presentChanged, this, &Shell::followStatusItem);
    // The first frames are the person's; to draw the icon and to ask the desktop for a tray come behind them.
    main_.whenComplete([this] {
#ifndef Q_OS_MACOS  // where it is the bundle's
        QGuiApplication::setWindowIcon(applicationIcon());
#endif
        statusItem_.start();
    });
}

/// The window hides once more as it is destroyed, when the parts that would be asked are gone already.
Shell::~Shell() {
    main_.window().disconnect(this);
}

void Shell::start() {
    main_.show();
    removeServicesMenu();
}

/// The application comes forward with the windows that it has: one that was closed stays so.
void Shell::openZelk() {
    reopening_.activating(QGuiApplication::applicationState());
    activateApplication();
    main_.bringAllForward();
}

/// A press on the icon in the dock while every window is closed.
void Shell::followApplicationState(Qt::ApplicationState state) {
    if (reopening_.asksForWindow(state) && main_.bringAllForward() == 0) main_.show();
}

void Shell::followMainWindow(bool visible) {
    if (!visible && !statusItem_.present()) quit_();
}

/// A status item that goes leaves nobody without a way in: then the main window comes back.
void Shell::followStatusItem() {
    if (!statusItem_.present() && !main_.window().isVisible()) main_.show();
}

}  // namespace zelk

#include "moc_Shell.cpp"
