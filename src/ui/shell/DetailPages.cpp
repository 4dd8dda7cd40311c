// SPDX-License-Identifier: MIT
#include "ui/shell/DetailPages.h"

#include <QUrl>
#include <algorithm>
#include <utility>

#include "state/AppModel.h"
#include "ui/screens/apps/AppsScreenModel.h"
#include "ui/screens/clutter/ClutterScreenModel.h"
#include "ui/screens/duplicates/DuplicatesScreenModel.h"
#include "ui/screens/health/HealthScreenModel.h"
#include "ui/screens/lens/LensScreenModel.h"
#include "ui/screens/overview/SurveyScreenModel.h"
#include "ui/screens/privacy/PrivacyScreenModel.h"
#include "ui/screens/reclaim/ReclaimScreenModel.h"
#include "ui/screens/settings/SettingsScreenModel.h"
#include "ui/screens/system/SystemScreenModel.h"
#include "ui/screens/tools/ToolsScreenModel.h"
#include "ui/screens/tune/TuneScreenModel.h"
#include "ui/shell/WindowServices.h"

namespace zelk {

namespace {

/// Describes a screen: its view, and a factory for the model that the view takes as a required property.
struct ScreenPlace {
    Screen screen;
    const char* view;      ///< the QML file, without its extension
    const char* property;  ///< the name of the model in the view
    std::unique_ptr<QObject> (*make)(const ScreenContext&);
};

template <class Model>
std::unique_ptr<QObject> make(const ScreenContext& context) {
    return std::make_unique<Model>(context.app);
}

template <>
std::unique_ptr<QObject> make<SettingsScreenModel>(const ScreenContext& context) {
    return std::make_unique<SettingsScreenModel>(context.app, context.services.pickFolder);
}

template <>
std::unique_ptr<QObject> make<HealthScreenModel>(const ScreenContext& context) {
    return std::make_unique<HealthScreenModel>(context.app, context.openHelp);
}

/// The table of screens.
constexpr ScreenPlace places[] = {
    {Screen::survey, "SurveyView", "survey", make<SurveyScreenModel>},
    {Screen::reclaim, "DevCleanupView", "reclaim", make<ReclaimScreenModel>},
    {Screen::privacy, "PrivacyView", "privacy", make<PrivacyScreenModel>},
    {Screen::tune, "TuneView", "tune", make<TuneScreenModel>},
    {Screen::apps, "AppsView", "apps", make<AppsScreenModel>},
    {Screen::clutter, "ClutterView", "clutter", make<ClutterScreenModel>},
    {Screen::duplicates, "DuplicatesView", "duplicates", make<DuplicatesScreenModel>},
    {Screen::lens, "MapView", "lens", make<LensScreenModel>},
    {Screen::health, "HealthView", "health", make<HealthScreenModel>},
    {Screen::system, "SystemView", "system", make<SystemScreenModel>},
    {Screen::tools, "ToolsView", "tools", make<ToolsScreenModel>},
    {Screen::settings, "SettingsView", "settings", make<SettingsScreenModel>},
};

const ScreenPlace& placeOf(Screen screen) {
    return *std::ranges::find(places, screen, &ScreenPlace::screen);
}

}  // namespace

DetailPages::DetailPages(const ScreenContext& context)
    : RowModel({"view", "built", "current"}), context_(context), current_(static_cast<int>(context.app.selection())) {
    built_[static_cast<std::size_t>(current_)] = true;
    connect(&context.app, &AppModel::selectionChanged, this, &DetailPages::followSelection);
}

QVariant DetailPages::value(std::size_t row, int role) const {
    switch (role) {
        case viewRole:
            return QUrl(QStringLiteral("qrc:/Zelk/App/%1.qml").arg(QLatin1String(placeOf(allScreens[row]).view)));
        case builtRole:
            return built_[row];
        case currentRole:
            return row == static_cast<std::size_t>(current_);
        default:
            return {};
    }
}

QVariantMap DetailPages::given(int row) {
    const Screen screen = allScreens[static_cast<std::size_t>(row)];
    return {{QString::fromLatin1(placeOf(screen).property), QVariant::fromValue(modelOf(screen))}};
}

QString DetailPages::currentView() const {
    return QString::fromLatin1(placeOf(allScreens[static_cast<std::size_t>(current_)]).view);
}

QObject* DetailPages::modelOf(Screen screen) {
    std::unique_ptr<QObject>& model = models_[static_cast<std::size_t>(screen)];
    if (!model) model = placeOf(screen).make(context_);
    return model.get();
}

void DetailPages::followSelection() {
    const int before = std::exchange(current_, static_cast<int>(context_.app.selection()));
    built_[static_cast<std::size_t>(current_)] = true;
    // Shows the new page before hiding the old one.
    rowChanged(current_, {builtRole, currentRole});
    rowChanged(before, {currentRole});
}

}  // namespace zelk

#include "moc_DetailPages.cpp"
