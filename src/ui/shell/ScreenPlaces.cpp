// SPDX-License-Identifier: MIT
#include "ui/shell/ScreenPlaces.h"

#include <algorithm>

#include "state/AppModel.h"
#include "ui/screens/clutter/ClutterScreenModel.h"
#include "ui/screens/lens/LensScreenModel.h"
#include "ui/screens/module/ModuleScreenModel.h"
#include "ui/screens/overview/SurveyScreenModel.h"
#include "ui/screens/reclaim/ReclaimScreenModel.h"
#include "ui/screens/settings/SettingsScreenModel.h"
#include "ui/screens/tools/ToolsScreenModel.h"
#include "ui/shell/WindowServices.h"

namespace zelk {

namespace {

template <class Model>
std::unique_ptr<QObject> make(const ScreenContext& context) {
    return std::make_unique<Model>(context.app);
}

template <>
std::unique_ptr<QObject> make<SettingsScreenModel>(const ScreenContext& context) {
    return std::make_unique<SettingsScreenModel>(context.app, context.services.pickFolder);
}

template <Screen screen>
std::unique_ptr<QObject> introduce(const ScreenContext& context) {
    return makeUnbuiltModule(context.app, screen);
}

constexpr ScreenPlace places[] = {
    {Screen::survey, "SurveyView", "survey", make<SurveyScreenModel>},
    {Screen::reclaim, "DevCleanupView", "reclaim", make<ReclaimScreenModel>},
    {Screen::privacy, "ModuleScaffold", "module", introduce<Screen::privacy>},
    {Screen::tune, "ModuleScaffold", "module", introduce<Screen::tune>},
    {Screen::apps, "ModuleScaffold", "module", introduce<Screen::apps>},
    {Screen::clutter, "ClutterView", "clutter", make<ClutterScreenModel>},
    {Screen::duplicates, "ModuleScaffold", "module", introduce<Screen::duplicates>},
    {Screen::lens, "MapView", "lens", make<LensScreenModel>},
    {Screen::health, "ModuleScaffold", "module", introduce<Screen::health>},
    {Screen::system, "ModuleScaffold", "module", introduce<Screen::system>},
    {Screen::tools, "ToolsView", "tools", make<ToolsScreenModel>},
    {Screen::settings, "SettingsView", "settings", make<SettingsScreenModel>},
};

}  // namespace

const ScreenPlace& placeOf(Screen screen) {
    return *std::ranges::find(places, screen, &ScreenPlace::screen);
}

}  // namespace zelk
