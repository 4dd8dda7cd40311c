// SPDX-License-Identifier: MIT
#include "ui/screens/module/UnbuiltModules.h"

#include "state/AppModel.h"
#include "ui/screens/module/ModuleScreenModel.h"
#include "ui/theme/DisplayText.h"
#include "ui/theme/ScreenLook.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

namespace {

/// Has no scan label and therefore no button, since there is nothing to start.
ModuleTexts introduced(Screen screen, const QString& title, const QString& subtitle) {
    ModuleTexts texts;
    texts.title = title;
    texts.subtitle = subtitle;
    texts.note = ModuleScreenModel::tr("%1 is not in this version yet.").arg(lookOf(screen).title);
    return texts;
}

ModuleTexts textsOf(const AppModel& app, Screen screen) {
    switch (screen) {
        case Screen::privacy:
            return introduced(screen, ModuleScreenModel::tr("Privacy"),
                              ModuleScreenModel::tr(
                                  "Clear browsing traces across your browsers — caches, histories, cookies. No malware "
                                  "scanner (that needs a signature database)."));
        case Screen::apps:
            return introduced(screen, ModuleScreenModel::tr("Apps"),
                              ModuleScreenModel::tr(
                                  "List installed apps by size and uninstall them cleanly — the app plus its leftover "
                                  "caches, preferences, and support files."));
        case Screen::duplicates:
            return introduced(
                screen, ModuleScreenModel::tr("Duplicates"),
                ModuleScreenModel::tr(
                    "Find byte-identical files — duplicate downloads, copied media, repeated exports — and "
                    "keep just one."));
        case Screen::tune:
            return introduced(screen, ModuleScreenModel::tr("Tune"), ModuleScreenModel::tr("startup & memory"));
        case Screen::health:
            return introduced(screen, SystemTexts::of(SystemTexts::HealthTitle), displayText(app.device().osVersion));
        case Screen::system:
            return introduced(screen, ModuleScreenModel::tr("System & snapshots"),
                              ModuleScreenModel::tr("what the treemap can't show"));
        default:
            return introduced(screen, lookOf(screen).title, lookOf(screen).subtitle);
    }
}

}  // namespace

std::unique_ptr<ModuleScreenModel> makeUnbuiltModule(const AppModel& app, Screen screen) {
    return std::make_unique<ModuleScreenModel>(screen, textsOf(app, screen));
}

}  // namespace zelk
