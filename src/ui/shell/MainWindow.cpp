// SPDX-License-Identifier: MIT
#include "ui/shell/MainWindow.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQuickItem>
#include <QScreen>
#include <QThread>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <utility>

#ifdef __GLIBC__
#include <malloc.h>
#endif

#include "state/AppModel.h"
#include "ui/screens/overview/SurveyScreenModel.h"
#include "ui/screens/reclaim/ReclaimScreenModel.h"
#include "ui/screens/settings/SettingsScreenModel.h"
#include "ui/screens/welcome/FirstRunModel.h"
#include "ui/shell/AboutInfo.h"
#include "ui/shell/Application.h"
#include "ui/shell/DetailPages.h"
#include "ui/shell/QuitQuestion.h"
#include "ui/shell/SidebarModel.h"
#include "ui/theme/Motion.h"
#include "ui/theme/TextScale.h"
#include "ui/theme/Theme.h"

namespace zelk {

namespace {

/// After the contents were painted, before the other views are prepared.
constexpr std::chrono::milliseconds restAfterStart{300};

template <class T>
T* singleton(QQmlEngine& engine, const char* name) {
    auto* instance = engine.singletonInstance<T*>(qmlTypeId("Zelk.Controls", 1, 0, name));
    if (instance == nullptr) qFatal("Zelk.Controls has no singleton %s", name);
    return instance;
}

/// A view's required property `name` with this value.
template <class T>
QVariantMap as(const char* name, const T& value) {
    return {{QString::fromLatin1(name), QVariant::fromValue(value)}};
}

/// Creates the window of a QML file of Zelk.App, centred on its screen and hidden. Aborts if the file does not define a
/// window, which is a bug.
std::unique_ptr<QQuickWindow> makeWindow(QQmlEngine& engine, const QString& file, const QVariantMap& given) {
    QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/Zelk/App/%1.qml").arg(file)));
    if (!component.isReady()) qFatal("%s", qPrintable(component.errorString()));
    std::unique_ptr<QQuickWindow> window(qobject_cast<QQuickWindow*>(component.createWithInitialProperties(given)));
    if (!window) qFatal("%s is no window: %s", qPrintable(file), qPrintable(component.errorString()));
    if (const QScreen* screen = window->screen()) {
        const QRect room = screen->availableGeometry();
        QRect place(QPoint(), window->size().boundedTo(room.size()).expandedTo(window->minimumSize()));
        place.moveCenter(room.center());
        place.moveTop(std::max(place.top(), room.top()));
        window->setGeometry(place);
    }
    return window;
}

/// Draws the window now, instead of after the pause that platforms put before an update.
void drawAtOnce(QQuickWindow& window) {
    QEvent update(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&window, &update);
}

/// Gives memory that is free already back to the system.
void trimMemory() {
#ifdef __GLIBC__
    ::malloc_trim(0);
#endif
}

/// Whether a modal sheet covers the window.
bool isCovered(const QQuickWindow& window) {
    // Popup items are children of the window's overlay, and their QObject parent is the popup.
    for (const QQuickItem* layer : window.contentItem()->childItems()) {
        if (!layer->inherits("QQuickOverlay")) continue;
        for (const QQuickItem* drawn : layer->childItems())
            if (drawn->isVisible() && drawn->parent() != nullptr && drawn->parent()->property("modal").toBool())
                return true;
    }
    return false;
}

/// Shows, restores and raises the window. Unlike QWindow::show(), it leaves a maximized window as it is, also one that
/// was minimized or closed meanwhile.
void raiseShown(QWindow& window) {
    if (const Qt::WindowStates states = window.windowStates(); states.testFlag(Qt::WindowMinimized))
        window.setWindowStates(Qt::WindowStates(states).setFlag(Qt::WindowMinimized, false));
    window.setVisible(true);
    window.raise();
}

/// Shows, restores, raises and activates the window.
void bringForward(QWindow& window) {
    raiseShown(window);
    window.requestActivate();
}

}  // namespace

MainWindow::MainWindow(AppModel& app, WindowServices services)
    : app_(app), services_(std::move(services)), sidebar_(std::make_unique<SidebarModel>(app)) {
    registerInterface();
    // Looking for the system's fonts takes longer than shaping the first texts. The first frame has none, so that the
    // two go on side by side.
    background_.start(
        [family = QGuiApplication::font().family()] { static_cast<void>(QFontDatabase::hasFamily(family)); });
    engine_.addImportPath(QStringLiteral("qrc:/"));

    // Before the first frame, so that no window shows the wrong theme.
    singleton<Theme>(engine_, "Theme")->follow(app);
    motion_ = singleton<Motion>(engine_, "Motion");
    textScale_ = singleton<TextScale>(engine_, "TextScale");

    quitQuestion_ = std::make_unique<QuitQuestion>(app.removals(), services_.quit);
    commands_ = std::make_unique<AppCommands>(
        app, [this](WindowId id) { openWindow(id); }, [this] { quitQuestion_->quit(); },
        [this] { return window_ && isCovered(*window_); });
    pages_ = std::make_unique<DetailPages>(ScreenContext{app, services_, [this] { openWindow(WindowId::help); }});
    if (services_.preferences != nullptr && services_.workspace != nullptr)
        firstRun_ =
            std::make_unique<FirstRunModel>(*services_.preferences, services_.accessGranted, *services_.workspace);
    window_ = makeWindow(engine_, QStringLiteral("MainWindow"),
                         {{QStringLiteral("sidebar"), QVariant::fromValue(sidebar_.get())},
                          {QStringLiteral("pages"), QVariant::fromValue(pages_.get())},
                          {QStringLiteral("commands"), QVariant::fromValue(commands_.get())},
                          {QStringLiteral("quitQuestion"), QVariant::fromValue(quitQuestion_.get())},
                          {QStringLiteral("firstRun"), QVariant::fromValue(firstRun_.get())}});
    views_.loadSoon({QStringLiteral("MainContents"), pages_->currentView()});  // while the first frame is drawn
    // The window may be closed or minimized when the user quits through the status item.
    QObject::connect(quitQuestion_.get(), &QuitQuestion::changed, window_.get(), [this] {
        if (quitQuestion_->asking()) bringForward(*window_);
    });
    afterNextFrame([this] {
        window_->setProperty("filled", true);
        afterNextFrame([this] {
            complete_ = true;
            if (whenComplete_) std::exchange(whenComplete_, {})();
            QTimer::singleShot(restAfterStart, window_.get(), [this] { views_.loadAll(); });
        });
        drawAtOnce(*window_);
    });
}

MainWindow::~MainWindow() {
    for (const auto& [id, window] : secondary_)
        QObject::disconnect(window.get(), &QWindow::visibleChanged, nullptr, nullptr);
}

bool MainWindow::isUp() const {
    return window_->isExposed() && window_->isActive() && complete_;
}

void MainWindow::afterNextFrame(const std::function<void()>& act) {
    QObject::connect(window_.get(), &QQuickWindow::frameSwapped, window_.get(), act,
                     static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
}

void MainWindow::show() {
    window_->setVisible(true);
    if (firstRun_ && !std::exchange(begun_, true)) firstRun_->start();
}

void MainWindow::comeForward(const Activation& by) {
    show();
    raiseShown(*window_);
    activateWindow(*window_, by);
}

int MainWindow::bringAllForward() {
    int brought = 0;
    const auto bring = [&](QQuickWindow* window) {
        if (window == nullptr || !window->isVisible()) return;
        bringForward(*window);
        ++brought;
    };
    for (const WindowId id : {WindowId::about, WindowId::help, WindowId::settings}) bring(findWindow(id));
    bring(window_.get());
    return brought;
}

SurveyScreenModel& MainWindow::survey() {
    return pages_->model<SurveyScreenModel>(Screen::survey);
}

ReclaimScreenModel& MainWindow::reclaim() {
    return pages_->model<ReclaimScreenModel>(Screen::reclaim);
}

QQuickWindow& MainWindow::openWindow(WindowId id) {
    std::unique_ptr<QQuickWindow>& window = secondary_[id];
    if (!window) {
        window = makeSecondary(id);
        QObject::connect(window.get(), &QWindow::visibleChanged, window.get(), [this, id](bool visible) {
            if (!visible) releaseClosed(id);
        });
        // As the user left it. Windows that cannot be resized may need another size by now, for larger texts.
        if (const auto place = places_.find(id); place != places_.end()) {
            window->setPosition(place->second.topLeft());
            if (window->minimumSize() != window->maximumSize()) window->resize(place->second.size());
        }
    }
    bringForward(*window);
    return *window;
}

QQuickWindow* MainWindow::findWindow(WindowId id) const {
    const auto found = secondary_.find(id);
    return found == secondary_.end() ? nullptr : found->second.get();
}

/// Returns the memory of a closed window, which cannot be destroyed while it reports that it was closed, nor within a
/// dialog's event loop, where a handler of the window may still be running: then the next closed window frees it.
void MainWindow::releaseClosed(WindowId id) {
    auto closed = secondary_.extract(id);
    if (closed.empty()) return;
    places_[id] = closed.mapped()->geometry();
    closed_.push_back(std::move(closed.mapped()));
    const auto release = [this] {
        if (QThread::currentThread()->loopLevel() > 1) return;
        closed_.clear();
        engine_.collectGarbage();
        trimMemory();
    };
    QMetaObject::invokeMethod(window_.get(), release, Qt::QueuedConnection);
}

std::unique_ptr<QQuickWindow> MainWindow::makeSecondary(WindowId id) {
    switch (id) {
        case WindowId::about:
            return makeWindow(engine_, QStringLiteral("AboutWindow"),
                              as("about", AboutInfo(services_.bundle, app_.device())));
        case WindowId::help:
            return makeWindow(engine_, QStringLiteral("HelpWindow"), {});
        case WindowId::settings:
            return makeWindow(engine_, QStringLiteral("SettingsWindow"),
                              as("settings", &pages_->model<SettingsScreenModel>(Screen::settings)));
    }
    return nullptr;
}

}  // namespace zelk
