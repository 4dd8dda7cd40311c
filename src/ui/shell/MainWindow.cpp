// SPDX-License-Identifier: MIT
#include "ui/shell/MainWindow.h"

#include <QGuiApplication>
#include <utility>

#include "state/AppModel.h"
#include "ui/screens/overview/SurveyScreenModel.h"
#include "ui/screens/reclaim/ReclaimScreenModel.h"
#include "ui/screens/settings/SettingsScreenModel.h"
#include "ui/screens/welcome/FirstRunModel.h"
#include "ui/shell/AboutInfo.h"
#include "ui/shell/AppCommands.h"
#include "ui/shell/Application.h"
#include "ui/shell/DetailPages.h"
#include "ui/shell/QuitQuestion.h"
#include "ui/shell/SidebarModel.h"
#include "ui/theme/Motion.h"
#include "ui/theme/TextScale.h"
#include "ui/theme/Theme.h"

namespace zelk {

namespace {

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

}  // namespace

MainWindow::MainWindow(AppModel& app, WindowServices services)
    : app_(app), services_(std::move(services)), sidebar_(std::make_unique<SidebarModel>(app)) {
    registerInterface();
    engine_.addImportPath(QStringLiteral("qrc:/"));

    // Before the first frame, so that no window shows the wrong theme.
    singleton<Theme>(engine_, "Theme")->follow(app);
    motion_ = singleton<Motion>(engine_, "Motion");
    textScale_ = singleton<TextScale>(engine_, "TextScale");

    secondary_ = std::make_unique<SecondaryWindows>(engine_, [this](WindowId id) { return givenTo(id); });
    quitQuestion_ = std::make_unique<QuitQuestion>(app.removals(), services_.quit);
    commands_ = std::make_unique<AppCommands>(
        app, [this](WindowId id) { secondary_->open(id); }, [this] { quitQuestion_->quit(); },
        [this] { return window_ && isCovered(*window_); });
    pages_ = std::make_unique<DetailPages>(ScreenContext{app, services_});
    if (services_.preferences != nullptr && services_.workspace != nullptr)
        firstRun_ =
            std::make_unique<FirstRunModel>(*services_.preferences, services_.accessGranted, *services_.workspace);
    window_ = makeWindow(engine_, QStringLiteral("MainWindow"),
                         {{QStringLiteral("sidebar"), QVariant::fromValue(sidebar_.get())},
                          {QStringLiteral("pages"), QVariant::fromValue(pages_.get())},
                          {QStringLiteral("commands"), QVariant::fromValue(commands_.get())},
                          {QStringLiteral("quitQuestion"), QVariant::fromValue(quitQuestion_.get())},
                          {QStringLiteral("firstRun"), QVariant::fromValue(firstRun_.get())}});
    // The window may be closed or minimized when the user quits through the status item.
    QObject::connect(quitQuestion_.get(), &QuitQuestion::changed, window_.get(), [this] {
        if (quitQuestion_->asking()) bringForward(*window_);
    });
    afterNextFrame([this] {
        window_->setProperty("filled", true);
        afterNextFrame([this] {
            complete_ = true;
            if (whenComplete_) std::exchange(whenComplete_, {})();
        });
    });
}

MainWindow::~MainWindow() = default;

bool MainWindow::isUp() const {
    return window_->isExposed() && window_->isActive() && complete_;
}

void MainWindow::afterNextFrame(const std::function<void()>& act) {
    QObject::connect(window_.get(), &QQuickWindow::frameSwapped, window_.get(), act,
                     static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
}

void MainWindow::show() {
    window_->show();
    if (firstRun_ && !std::exchange(begun_, true)) firstRun_->start();
}

int MainWindow::bringAllForward() {
    int brought = 0;
    const auto bring = [&](QQuickWindow* window) {
        if (window == nullptr || !window->isVisible()) return;
        bringForward(*window);
        ++brought;
    };
    for (const WindowId id : {WindowId::about, WindowId::help, WindowId::settings}) bring(secondary_->find(id));
    bring(window_.get());
    return brought;
}

SurveyScreenModel& MainWindow::survey() {
    return pages_->model<SurveyScreenModel>(Screen::survey);
}

ReclaimScreenModel& MainWindow::reclaim() {
    return pages_->model<ReclaimScreenModel>(Screen::reclaim);
}

QVariantMap MainWindow::givenTo(WindowId id) {
    switch (id) {
        case WindowId::about:
            return as("about", AboutInfo(services_.bundle, app_.device()));
        case WindowId::help:
            return {};
        case WindowId::settings:
            return as("settings", &pages_->model<SettingsScreenModel>(Screen::settings));
    }
    return {};
}

}  // namespace zelk
