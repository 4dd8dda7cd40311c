// SPDX-License-Identifier: MIT
#include "ui/screens/help/HelpTopic.h"

#include "ui/theme/ScreenLook.h"

namespace zelk {

QString HelpTopic::symbol() const {
    return screen ? lookOf(*screen).symbol : QStringLiteral("questionmark.circle");
}

QColor HelpTopic::color() const {
    return screen ? lookOf(*screen).color : QColor(245, 166, 35);
}

const std::vector<HelpTopic>& helpTopics() {
    static const std::vector<HelpTopic> all{
        {0,
         QStringLiteral("Getting started"),
         std::nullopt,
         QStringLiteral("Zelk surveys your drive, shows what's using space, and helps you reclaim it safely."),
         {QStringLiteral("Open Survey and press Run Survey. Zelk walks your home folder, measuring real allocated "
                         "size and deduping hardlinks so the numbers match Finder."),
          QStringLiteral("Every module has its own scan button — nothing runs until you ask. Use the Go menu "
                         "(⌘1–⌘9) or the sidebar to move between modules."),
          QStringLiteral("Grant Full Disk Access when prompted so Zelk can see your whole drive; without it, some "
                         "protected folders are skipped (that's normal).")}},
        {1,
         QStringLiteral("Survey"),
         Screen::survey,
         QStringLiteral("The home dashboard — your drive at a glance."),
         {QStringLiteral("The storage ribbon breaks your scanned space down by file type. The finding cards "
                         "summarise what's recoverable and route you to the right module."),
          QStringLiteral("Trends appears once you've run two or more surveys, charting how your drive changes over "
                         "time.")}},
        {2,
         QStringLiteral("Reclaim & safety"),
         Screen::reclaim,
         QStringLiteral("Clear caches, logs, and developer junk — safely."),
         {QStringLiteral("Items are graded: safe (pure cache, zero risk), regenerates (rebuilds on next "
                         "build/install), and review (may lose non-code state — left unchecked by default)."),
          QStringLiteral("Normal mode offers one-click cleaning of safe items and a bubble map of categories; tap a "
                         "bubble to clean just that category. Developer mode adds per-item control and an age "
                         "filter."),
          QStringLiteral("Everything moves to the Trash by default, so it's reversible. A dry-run sheet always "
                         "previews exactly what will be removed before anything happens.")}},
        {3,
         QStringLiteral("Clutter"),
         Screen::clutter,
         QStringLiteral("Find your largest and oldest files."),
         {QStringLiteral("Filter by type — video, audio, photos, archives, disk images — and sort by size or age. "
                         "Reveal anything in Finder, or move it to the Trash.")}},
        {4,
         QStringLiteral("Duplicates"),
         Screen::duplicates,
         QStringLiteral("Find byte-identical files and keep just one."),
         {QStringLiteral("Only files of the same size are candidates, and only those are hashed (SHA-256), so the "
                         "scan stays fast. Each set lets you keep the first copy and Trash the rest.")}},
        {5,
         QStringLiteral("Lens"),
         Screen::lens,
         QStringLiteral("See where your space went."),
         {QStringLiteral("Bubbles sizes each folder as a circle; Browse is a drill-down list with size bars; Map is "
                         "a treemap. In every mode you can open, reveal, or Trash a folder.")}},
        {6,
         QStringLiteral("Apps"),
         Screen::apps,
         QStringLiteral("Uninstall applications cleanly."),
         {QStringLiteral("Lists installed apps by size. Uninstalling removes the app and its leftovers — caches, "
                         "preferences, support files, and saved state — not just the bundle.")}},
        {7,
         QStringLiteral("Privacy"),
         Screen::privacy,
         QStringLiteral("Clear browsing traces."),
         {QStringLiteral("Finds caches, histories, and cookies across your browsers, plus recent-item state. Quit a "
                         "browser before clearing its data so its session isn't disrupted."),
          QStringLiteral("Zelk has no malware scanner — that requires a signature database, and a fake one would be "
                         "worse than none.")}},
        {8,
         QStringLiteral("Tune"),
         Screen::tune,
         QStringLiteral("Quick performance levers."),
         {QStringLiteral("See memory pressure, free up RAM, flush the DNS cache, and remove startup launch agents. "
                         "Memory and DNS actions ask for administrator permission — Zelk never runs them silently.")}},
        {9,
         QStringLiteral("Health"),
         Screen::health,
         QStringLiteral("Live vitals for your Mac."),
         {QStringLiteral("Disk, memory, CPU, and battery gauges update every couple of seconds. The Improve section "
                         "offers one-tap tune-ups and quick links to the relevant modules.")}},
        {10,
         QStringLiteral("System & snapshots"),
         Screen::system,
         QStringLiteral("What a treemap can't show."),
         {QStringLiteral("Surfaces purgeable space and local APFS snapshots. macOS doesn't report a size per "
                         "snapshot, only whether each is freeable — so Zelk shows the purgeable total and each "
                         "snapshot's state."),
          QStringLiteral("Thinning lets macOS choose what to free; deletion is offered only for freeable snapshots, "
                         "behind an administrator prompt.")}},
        {11,
         QStringLiteral("Privacy & trust"),
         std::nullopt,
         QStringLiteral("Zelk works entirely on your Mac."),
         {QStringLiteral("Nothing is uploaded anywhere — all scanning and cleaning is local. Destructive actions "
                         "default to the Trash, and admin actions always go through the standard macOS "
                         "authorization prompt."),
          QStringLiteral("Zelk is non-sandboxed so it can survey the whole drive; that's why it's distributed "
                         "directly (Developer ID + notarization), not via the App Store.")}},
    };
    return all;
}

}  // namespace zelk
