// SPDX-License-Identifier: MIT
#include "ui/shell/MainWindow.h"

#include <QGuiApplication>
#include <utility>

#include "state/AppModel.h"
#include "ui/clutter/ClutterScreenModel.h"
#include "ui/help/HelpModel.h"
#include "ui/lens/LensScreenModel.h"
#include "ui/navigation/ModuleScreenModel.h"
#include "ui/navigation/SidebarModel.h"
#include "ui/navigation/UnbuiltModules.h"
#include "ui/reclaim/ReclaimScreenModel.h"
#include "ui/settings/SettingsScreenModel.h"
#include "ui/shell/AboutModel.h"
#include "ui/shell/AppCommands.h"
#include "ui/shell/Application.h"
#include "ui/shell/DetailPages.h"
#include "ui/shell/QuitQuestion.h"
#include "ui/shell/RootModel.h"
#include "ui/survey/SurveyScreenModel.h"
#include "ui/theme/Motion.h"
#include "ui/theme/TextScale.h"
#include "ui/theme/Theme.h"
#include "ui/tools/ToolsScreenModel.h"
#include "ui/welcome/FirstRunModel.h"

namespace zelk {

namespace {

template <class T>
T* singleton(QQmlEngine& engine, const char* uri, const char* name) {
    auto* instance = engine.singletonInstance<T*>(qmlTypeId(uri, 1, 0, name));
    if (instance == nullptr) qFatal("QML module %s has no singleton %s", uri, name);
    return instance;
}

/// The model where a view has its name for it.
template <class T>
QVariantMap as(const char* name, T* model) {
    return {{QString::fromLatin1(name), QVariant::fromValue(model)}};
}

template <class T, class... Arguments>
T& madeOnce(std::unique_ptr<T>& model, Arguments&&... arguments) {
    if (!model) model = std::make_unique<T>(std::forward<Arguments>(arguments)...);
    return *model;
}

QUrl view(const char* path) {
    return QUrl(QStringLiteral("qrc:/Zelk/%1.qml").arg(QLatin1String(path)));
}

}  // namespace

MainWindow::MainWindow(AppModel& app, WindowServices services)
    : app_(app),
      services_(std::move(services)),
      survey_(std::make_unique<SurveyScreenModel>(app)),
      sidebar_(std::make_unique<SidebarModel>(app)) {
    registerInterface();
    engine_.addImportPath(QStringLiteral("qrc:/"));

    // Before the first frame, so that no window ever flashes in the wrong theme.
    singleton<Theme>(engine_, "Zelk.Theme", "Theme")->follow(app);
    motion_ = singleton<Motion>(engine_, "Zelk.Theme", "Motion");
    textScale_ = singleton<TextScale>(engine_, "Zelk.Theme", "TextScale");
    const auto followMotion = [this] { survey_->setCounting(!motion_->reduced()); };
    QObject::connect(motion_, &Motion::changed, survey_.get(), followMotion);
    followMotion();

    secondary_ = std::make_unique<SecondaryWindows>(engine_, [this](WindowId id) { return givenTo(id); });
    quitQuestion_ = std::make_unique<QuitQuestion>(app.removals(), services_.quit);
    commands_ = std::make_unique<AppCommands>(
        app, [this](WindowId id) { secondary_->open(id); }, [this] { quitQuestion_->quit(); },
        [this] { return window_ && isCovered(*window_); });
    pages_ = std::make_unique<DetailPages>(app, makePages());
    if (services_.preferences != nullptr && services_.workspace != nullptr)
        firstRun_ =
            std::make_unique<FirstRunModel>(*services_.preferences, services_.accessGranted, *services_.workspace);
    root_ = std::make_unique<RootModel>(*sidebar_, *pages_, *commands_, *quitQuestion_, firstRun_.get());
    window_ = makeWindow(engine_, QStringLiteral("MainWindow"), as("root", root_.get()));
    // It may be closed or folded away while somebody quits by the status item.
    QObject::connect(quitQuestion_.get(), &QuitQuestion::changed, root_.get(), [this] {
        if (quitQuestion_->asking()) bringForward(*window_);
    });
    afterNextFrame([this] {
        root_->fill();
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
    QObject::connect(window_.get(), &QQuickWindow::frameSwapped, root_.get(), act,
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

std::vector<DetailPages::Page> MainWindow::makePages() {
    std::vector<DetailPages::Page> pages;
    for (const Screen screen : allScreens) {
        switch (screen) {
            case Screen::survey:
                pages.push_back({view("Survey/SurveyView"), [this] { return as("survey", survey_.get()); }});
                break;
            case Screen::reclaim:
                pages.push_back(
                    {view("Reclaim/ReclaimView"), [this] { return as("reclaim", &madeOnce(reclaim_, app_)); }});
                break;
            case Screen::lens:
                pages.push_back({view("Lens/LensView"), [this] { return as("lens", &madeOnce(lens_, app_)); }});
                break;
            case Screen::clutter:
                pages.push_back(
                    {view("Clutter/ClutterView"), [this] { return as("clutter", &madeOnce(clutter_, app_)); }});
                break;
            case Screen::tools:
                pages.push_back({view("Tools/ToolsView"), [this] { return as("tools", &madeOnce(tools_, app_)); }});
                break;
            case Screen::settings:
                pages.push_back({view("Settings/SettingsView"), [this] { return as("settings", &settings()); }});
                break;
            default:
                pages.push_back({view("Navigation/ModuleView"), [this, screen] {
                                     modules_.push_back(makeUnbuiltModule(app_, screen));
                                     return as("module", modules_.back().get());
                                 }});
        }
    }
    return pages;
}

QVariantMap MainWindow::givenTo(WindowId id) {
    switch (id) {
        case WindowId::about:
            return as("about", &madeOnce(about_, services_.bundle, app_.device()));
        case WindowId::help:
            return as("help", &madeOnce(help_));
        case WindowId::settings:
            return as("settings", &settings());
    }
    return {};
}

SettingsScreenModel& MainWindow::settings() {
    return madeOnce(settings_, app_, services_.pickFolder);
}

}  // namespace zelk
