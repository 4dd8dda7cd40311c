// SPDX-License-Identifier: MIT
#include "ui/navigation/UnbuiltModules.h"

#include "state/AppModel.h"
#include "ui/components/ScreenLook.h"
#include "ui/navigation/SurveyedModule.h"
#include "ui/text/DisplayText.h"

namespace zelk {

namespace {

/// Of a module that looks for things of its own, which nothing does yet: no button.
ModuleTexts introduced(Screen screen, const QString& title, const QString& subtitle) {
    ModuleTexts texts;
    texts.title = title;
    texts.subtitle = subtitle;
    texts.note = lookOf(screen).title + QStringLiteral(" is not in this version yet.");
    return texts;
}

/// Of a module that shows what a survey found.
ModuleTexts surveyed(Screen screen, const QString& subtitle, const QString& scanLabel, const QString& scanningLabel) {
    ModuleTexts texts;
    texts.title = lookOf(screen).title;
    texts.subtitle = subtitle;
    texts.scanLabel = scanLabel;
    texts.scanningLabel = scanningLabel;
    texts.resultTitle = QStringLiteral("Your survey is ready");
    texts.resultNote =
        QStringLiteral("Its findings are in the Overview. The %1 view of them is not in this version yet.")
            .arg(lookOf(screen).title);
    return texts;
}

ModuleTexts textsOf(const AppModel& app, Screen screen) {
    switch (screen) {
        case Screen::privacy:
            return introduced(screen, "Privacy",
                              "Clear browsing traces across your browsers — caches, histories, cookies. No malware "
                              "scanner (that needs a signature database).");
        case Screen::apps:
            return introduced(screen, "Apps",
                              "List installed apps by size and uninstall them cleanly — the app plus its leftover "
                              "caches, preferences, and support files.");
        case Screen::duplicates:
            return introduced(screen, "Duplicates",
                              "Find byte-identical files — duplicate downloads, copied media, repeated exports — and "
                              "keep just one.");
        case Screen::tune:
            return introduced(screen, "Tune", "startup & memory");
        case Screen::health:
            return introduced(screen, "Mac health", displayText(app.device().osVersion));
        case Screen::system:
            return introduced(screen, "System & snapshots", "what the treemap can't show");
        default:
            return introduced(screen, lookOf(screen).title, lookOf(screen).subtitle);
    }
}

}  // namespace

std::unique_ptr<ModuleScreenModel> makeUnbuiltModule(AppModel& app, Screen screen) {
    ModuleTexts texts = textsOf(app, screen);
    if (texts.scanLabel.isEmpty()) return std::make_unique<ModuleScreenModel>(screen, std::move(texts));
    return std::make_unique<SurveyedModule>(app, screen, std::move(texts));
}

}  // namespace zelk
