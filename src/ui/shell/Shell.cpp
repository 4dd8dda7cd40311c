// SPDX-License-Identifier: MIT
#include "ui/shell/Shell.h"

#include <QEvent>
#include <QGuiApplication>
#include <QSessionManager>

#include "ui/shell/Application.h"
#include "ui/shell/QuitQuestion.h"

namespace zelk {

Shell::Shell(AppModel& app, const WindowServices& services)
    : main_(app, services),
      statusMenu_(
          app, [this] { openZelk(); }, [this] { main_.quitQuestion().quit(); }),
      statusItem_(statusMenu_, services.tray()) {
    QGuiApplication::setQuitOnLastWindowClosed(false);
#ifdef Q_OS_MACOS
    menuBar_ = main_.commands().makeMenuBar();
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, &Shell::followApplicationState);
#endif
    qGuiApp->installEventFilter(this);
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager& session) {
        QuitQuestion& question = main_.quitQuestion();
        if (question.holds() && question.endSession(session.allowsInteraction())) session.cancel();
    });
    connect(&main_.window(), &QWindow::visibleChanged, this, &Shell::followMainWindow);
    connect(&statusItem_, &StatusItem::presentChanged, this, &Shell::followStatusItem);
    // The icon and the query for a tray wait until the first frames are shown.
    main_.whenComplete([this] {
#ifndef Q_OS_MACOS  // its bundle has the icon
        QGuiApplication::setWindowIcon(applicationIcon());
#endif
        statusItem_.start();
        emit complete();
    });
}

/// The window emits visibleChanged once more on destruction, when the members used by the handler are gone.
Shell::~Shell() {
    qGuiApp->removeEventFilter(this);
    main_.window().disconnect(this);
}

void Shell::start() {
    main_.show();
    removeServicesMenu();
}

bool Shell::comeForward(const Activation& by) {
    if (!main_.quitQuestion().stay()) return false;
    main_.comeForward(by);
    return true;
}

/// Raises the open windows; closed ones stay closed.
void Shell::openZelk() {
    reopening_.activating(QGuiApplication::applicationState());
    activateApplication();
    main_.bringAllForward();
}

/// Handles a click on the Dock icon while all windows are closed.
void Shell::followApplicationState(Qt::ApplicationState state) {
    if (reopening_.asksForWindow(state) && main_.bringAllForward() == 0) main_.show();
}

void Shell::followMainWindow(bool visible) {
    if (!visible && !statusItem_.present()) main_.quitQuestion().quit();
}

/// Holds back Quit events of the system, and the Close event of the main window if that would quit, until the question
/// is answered.
bool Shell::eventFilter(QObject* watched, QEvent* event) {
    const bool ends = event->type() == QEvent::Quit
                          ? watched == qGuiApp
                          : event->type() == QEvent::Close && watched == &main_.window() && !statusItem_.present();
    if (!ends || !main_.quitQuestion().holds()) return QObject::eventFilter(watched, event);
    event->ignore();
    main_.quitQuestion().quit();
    return true;
}

/// Shows the main window when the status item disappears, since nothing else would lead back to the application.
void Shell::followStatusItem() {
    if (!statusItem_.present() && !main_.window().isVisible()) main_.show();
}

}  // namespace zelk

#include "moc_Shell.cpp"
