// SPDX-License-Identifier: MIT
#include "ui/screens/help/HelpModel.h"

#include "ui/theme/ScreenLook.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

QString HelpTopic::symbol() const {
    return screen ? lookOf(*screen).symbol : QStringLiteral("questionmark.circle");
}

QColor HelpTopic::tint() const {
    return screen ? lookOf(*screen).color : QColor(245, 166, 35);
}

QList<HelpTopic> helpTopics() {
    return {
        {0,
         HelpTopic::tr("Getting started"),
         std::nullopt,
         HelpTopic::tr("Zelk surveys your drive, shows what's using space, and helps you reclaim it safely."),
         {SystemTexts::of(SystemTexts::HelpMeasuring), SystemTexts::of(SystemTexts::HelpMenuKeys),
          SystemTexts::of(SystemTexts::HelpAccess)}},
        {1,
         HelpTopic::tr("Survey"),
         Screen::survey,
         HelpTopic::tr("The home dashboard — your drive at a glance."),
         {HelpTopic::tr("The storage ribbon breaks your scanned space down by file type. The finding cards "
                        "summarise what's recoverable and route you to the right module."),
          HelpTopic::tr("Trends appears once you've run two or more surveys, charting how your drive changes over "
                        "time.")}},
        {2,
         HelpTopic::tr("Reclaim & safety"),
         Screen::reclaim,
         HelpTopic::tr("Clear caches, logs, and developer junk — safely."),
         {HelpTopic::tr("Items are graded: safe (pure cache, zero risk), regenerates (rebuilds on next "
                        "build/install), and review (may lose non-code state — left unchecked by default)."),
          HelpTopic::tr("Normal mode offers one-click cleaning of safe items and a bubble map of categories; tap a "
                        "bubble to clean just that category. Developer mode adds per-item control and an age "
                        "filter."),
          HelpTopic::tr("Everything moves to the Trash by default, so it's reversible. A dry-run sheet always "
                        "previews exactly what will be removed before anything happens.")}},
        {3,
         HelpTopic::tr("Clutter"),
         Screen::clutter,
         HelpTopic::tr("Find your largest and oldest files."),
         {SystemTexts::of(SystemTexts::HelpClutter)}},
        {4,
         HelpTopic::tr("Duplicates"),
         Screen::duplicates,
         HelpTopic::tr("Find byte-identical files and keep just one."),
         {HelpTopic::tr("Only files of the same size are candidates, and only those are hashed (SHA-256), so the "
                        "scan stays fast. Each set lets you keep the first copy and Trash the rest.")}},
        {5,
         HelpTopic::tr("Lens"),
         Screen::lens,
         HelpTopic::tr("See where your space went."),
         {HelpTopic::tr("Bubbles sizes each folder as a circle; Browse is a drill-down list with size bars; Map is "
                        "a treemap. In every mode you can open, reveal, or Trash a folder.")}},
        {6,
         HelpTopic::tr("Apps"),
         Screen::apps,
         HelpTopic::tr("Uninstall applications cleanly."),
         {HelpTopic::tr("Lists installed apps by size. Uninstalling removes the app and its leftovers — caches, "
                        "preferences, support files, and saved state — not just the bundle.")}},
        {7,
         HelpTopic::tr("Privacy"),
         Screen::privacy,
         HelpTopic::tr("Clear browsing traces."),
         {HelpTopic::tr("Finds caches, histories, and cookies across your browsers, plus recent-item state. Quit a "
                        "browser before clearing its data so its session isn't disrupted."),
          HelpTopic::tr("Zelk has no malware scanner — that requires a signature database, and a fake one would be "
                        "worse than none.")}},
        {8,
         HelpTopic::tr("Tune"),
         Screen::tune,
         HelpTopic::tr("Quick performance levers."),
         {SystemTexts::of(SystemTexts::HelpTune)}},
        {9,
         HelpTopic::tr("Health"),
         Screen::health,
         SystemTexts::of(SystemTexts::HelpHealth),
         {HelpTopic::tr("Disk, memory, CPU, and battery gauges update every couple of seconds. The Improve section "
                        "offers one-tap tune-ups and quick links to the relevant modules.")}},
        {10,
         HelpTopic::tr("System & snapshots"),
         Screen::system,
         HelpTopic::tr("What a treemap can't show."),
         {SystemTexts::of(SystemTexts::HelpSnapshots), SystemTexts::of(SystemTexts::HelpThinning)}},
        {11,
         HelpTopic::tr("Privacy & trust"),
         std::nullopt,
         SystemTexts::of(SystemTexts::HelpPrivacy),
         {SystemTexts::of(SystemTexts::HelpPrompts), SystemTexts::of(SystemTexts::HelpSandbox)}},
    };
}

void HelpModel::select(int row) {
    if (row < 0 || row >= topics_.size()) return;
    const int before = current();
    selection_ = topics_[row].id;
    if (row != before) emit currentChanged();
}

}  // namespace zelk

#include "moc_HelpModel.cpp"
