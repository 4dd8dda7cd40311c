// SPDX-License-Identifier: MIT
#include "ui/shell/Shell.h"

#include <QEvent>
#include <QGuiApplication>
#include <QSessionManager>

#include "ui/shell/Application.h"
#include "ui/shell/NativeApplication.h"
#include "ui/shell/NativeMenuBar.h"
#include "ui/shell/QuitQuestion.h"

namespace zelk {

Shell::Shell(AppModel& app, const WindowServices& services)
    : main_(app, services),
      statusMenu_(
          app, [this] { openZelk(); }, [this] { main_.quitQuestion().quit(); }),
      statusItem_(statusMenu_, services.tray()) {
    QGuiApplication::setQuitOnLastWindowClosed(false);
#ifdef Q_OS_MACOS
    menuBar_ = makeNativeMenuBar(main_.commands());
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, &Shell::followApplicationState);
#endif
    qGuiApp->installEventFilter(this);
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager& session) {
        QuitQuestion& question = main_.quitQuestion();
        if (question.holds() && question.endSession(session.allowsInteraction())) session.cancel();
    });
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
    qGuiApp->removeEventFilter(this);
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
    if (!visible && !statusItem_.present()) main_.quitQuestion().quit();
}

/// What the system or the desktop wants to end, and the press that closes the main window where that is the end: held
/// back until the person has said how.
bool Shell::eventFilter(QObject* watched, QEvent* event) {
    const bool ends = event->type() == QEvent::Quit
                          ? watched == qGuiApp
                          : event->type() == QEvent::Close && watched == &main_.window() && !statusItem_.present();
    if (!ends || !main_.quitQuestion().holds()) return QObject::eventFilter(watched, event);
    event->ignore();
    main_.quitQuestion().quit();
    return true;
}

/// A status item that goes leaves nobody without a way in: then the main window comes back.
void Shell::followStatusItem() {
    if (!statusItem_.present() && !main_.window().isVisible()) main_.show();
}

}  // namespace zelk

#include "moc_Shell.cpp"
