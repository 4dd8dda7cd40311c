// SPDX-License-Identifier: MIT
#include "ui/shell/MainWindow.h"

#include <QQmlComponent>
#include <QVariantMap>

#include "ui/shell/Application.h"
#include "ui/survey/SurveyScreenModel.h"
#include "ui/theme/Motion.h"
#include "ui/theme/Theme.h"

namespace zelk {

namespace {

template <class T>
T* singleton(QQmlEngine& engine, const char* uri, const char* name) {
    auto* instance = engine.singletonInstance<T*>(qmlTypeId(uri, 1, 0, name));
    if (instance == nullptr) qFatal("QML module %s has no singleton %s", uri, name);
    return instance;
}

}  // namespace

MainWindow::MainWindow(AppModel& app) : survey_(std::make_unique<SurveyScreenModel>(app)) {
    registerInterface();
    engine_.addImportPath(QStringLiteral("qrc:/"));

    // Before the first frame, so that no window ever flashes in the wrong theme.
    singleton<Theme>(engine_, "Zelk.Theme", "Theme")->follow(app);
    motion_ = singleton<Motion>(engine_, "Zelk.Theme", "Motion");
    const auto followMotion = [this] { survey_->setCounting(!motion_->reduced()); };
    QObject::connect(motion_, &Motion::changed, survey_.get(), followMotion);
    followMotion();

    QQmlComponent component(&engine_, QUrl(QStringLiteral("qrc:/Zelk/Shell/MainWindow.qml")));
    if (!component.isReady()) qFatal("%s", qPrintable(component.errorString()));
    const QVariantMap given{{QStringLiteral("survey"), QVariant::fromValue(survey_.get())}};
    window_.reset(qobject_cast<QQuickWindow*>(component.createWithInitialProperties(given)));
    if (!window_) qFatal("the main window is no window: %s", qPrintable(component.errorString()));
    window_->setIcon(applicationIcon());
}

MainWindow::~MainWindow() = default;

}  // namespace zelk
