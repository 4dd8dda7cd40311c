// SPDX-License-Identifier: MIT
#include "ui/screens/help/HelpModel.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <set>
#include <string>
#include <vector>

namespace zelk {

namespace {

struct Topic {
    std::string title;
    std::string symbol;
    QColor tint;
    std::string lead;
    std::vector<std::string> paragraphs;
};

const std::vector<Topic>& topics() {
    static const std::vector<Topic> all{
        {"Getting started",
         "questionmark.circle",
         {245, 166, 35},
         "Zelk surveys your drive, shows what's using space, and helps you reclaim it safely.",
         {"Open Survey and press Run Survey. Zelk walks your home folder, measuring real allocated size and deduping "
          "hardlinks so the numbers match Finder.",
          "Every module has its own scan button — nothing runs until you ask. Use the Go menu (⌘1–⌘9) or the sidebar "
          "to move between modules.",
          "Grant Full Disk Access when prompted so Zelk can see your whole drive; without it, some protected folders "
          "are skipped (that's normal)."}},
        {"Survey",
         "scope",
         {245, 166, 35},
         "The home dashboard — your drive at a glance.",
         {"The storage ribbon breaks your scanned space down by file type. The finding cards summarise what's "
          "recoverable and route you to the right module.",
          "Trends appears once you've run two or more surveys, charting how your drive changes over time."}},
        {"Reclaim & safety",
         "sparkles",
         {50, 199, 123},
         "Clear caches, logs, and developer junk — safely.",
         {"Items are graded: safe (pure cache, zero risk), regenerates (rebuilds on next build/install), and review "
          "(may lose non-code state — left unchecked by default).",
          "Normal mode offers one-click cleaning of safe items and a bubble map of categories; tap a bubble to clean "
          "just that category. Developer mode adds per-item control and an age filter.",
          "Everything moves to the Trash by default, so it's reversible. A dry-run sheet always previews exactly "
          "what will be removed before anything happens."}},
        {"Clutter",
         "tray.full",
         {34, 195, 201},
         "Find your largest and oldest files.",
         {"Filter by type — video, audio, photos, archives, disk images — and sort by size or age. Reveal anything "
          "in Finder, or move it to the Trash."}},
        {"Duplicates",
         "doc.on.doc",
         {21, 170, 191},
         "Find byte-identical files and keep just one.",
         {"Only files of the same size are candidates, and only those are hashed (SHA-256), so the scan stays fast. "
          "Each set lets you keep the first copy and Trash the rest."}},
        {"Lens",
         "circle.hexagongrid",
         {232, 91, 196},
         "See where your space went.",
         {"Bubbles sizes each folder as a circle; Browse is a drill-down list with size bars; Map is a treemap. In "
          "every mode you can open, reveal, or Trash a folder."}},
        {"Apps",
         "square.grid.2x2",
         {167, 123, 255},
         "Uninstall applications cleanly.",
         {"Lists installed apps by size. Uninstalling removes the app and its leftovers — caches, preferences, "
          "support files, and saved state — not just the bundle."}},
        {"Privacy",
         "hand.raised",
         {62, 155, 255},
         "Clear browsing traces.",
         {"Finds caches, histories, and cookies across your browsers, plus recent-item state. Quit a browser before "
          "clearing its data so its session isn't disrupted.",
          "Zelk has no malware scanner — that requires a signature database, and a fake one would be worse than "
          "none."}},
        {"Tune",
         "speedometer",
         {255, 107, 94},
         "Quick performance levers.",
         {"See memory pressure, free up RAM, flush the DNS cache, and remove startup launch agents. Memory and DNS "
          "actions ask for administrator permission — Zelk never runs them silently."}},
        {"Health",
         "heart.text.square",
         {47, 211, 165},
         "Live vitals for your Mac.",
         {"Disk, memory, CPU, and battery gauges update every couple of seconds. The Improve section offers one-tap "
          "tune-ups and quick links to the relevant modules."}},
        {"System & snapshots",
         "internaldrive",
         {124, 131, 255},
         "What a treemap can't show.",
         {"Surfaces purgeable space and local APFS snapshots. macOS doesn't report a size per snapshot, only whether "
          "each is freeable — so Zelk shows the purgeable total and each snapshot's state.",
          "Thinning lets macOS choose what to free; deletion is offered only for freeable snapshots, behind an "
          "administrator prompt."}},
        {"Privacy & trust",
         "questionmark.circle",
         {245, 166, 35},
         "Zelk works entirely on your Mac.",
         {"Nothing is uploaded anywhere — all scanning and cleaning is local. Destructive actions default to the "
          "Trash, and admin actions always go through the standard macOS authorization prompt.",
          "Zelk is non-sandboxed so it can survey the whole drive; that's why it's distributed directly (Developer "
          "ID + notarization), not via the App Store."}},
    };
    return all;
}

QVariant at(const HelpModel& help, int row, const char* role) {
    return help.data(help.index(row), help.roleNames().key(role));
}

std::vector<std::string> bytes(const QStringList& texts) {
    std::vector<std::string> all;
    for (const QString& text : texts) all.push_back(text.toStdString());
    return all;
}

/// The rows that say of themselves that they are read.
std::vector<int> currentRows(const HelpModel& help) {
    std::vector<int> rows;
    for (int row = 0; row < help.rowCount(); ++row)
        if (at(help, row, "current").toBool()) rows.push_back(row);
    return rows;
}

}  // namespace

TEST(HelpModel, listsTheTwelveTopicsInOrder) {
    const HelpModel help;
    ASSERT_EQ(help.rowCount(), 12);
    for (int row = 0; row < 12; ++row) {
        const Topic& expected = topics()[static_cast<std::size_t>(row)];
        EXPECT_EQ(at(help, row, "title").toString().toStdString(), expected.title);
        EXPECT_EQ(at(help, row, "symbol").toString().toStdString(), expected.symbol) << expected.title;
        EXPECT_EQ(at(help, row, "tint").value<QColor>(), expected.tint) << expected.title;
    }
}

TEST(HelpModel, saysEveryTopicToTheLetter) {
    HelpModel help;
    for (int row = 0; row < 12; ++row) {
        const Topic& expected = topics()[static_cast<std::size_t>(row)];
        help.select(row);
        EXPECT_EQ(help.title().toStdString(), expected.title);
        EXPECT_EQ(help.symbol().toStdString(), expected.symbol);
        EXPECT_EQ(help.tint(), expected.tint);
        EXPECT_EQ(help.lead().toStdString(), expected.lead);
        EXPECT_EQ(bytes(help.paragraphs()), expected.paragraphs);
    }
}

TEST(HelpModel, gettingStartedHasNoScreenAndTheGenericSymbol) {
    const HelpTopic& first = helpTopics().front();
    EXPECT_EQ(first.title.toStdString(), "Getting started");
    EXPECT_FALSE(first.screen.has_value());
    EXPECT_EQ(first.symbol().toStdString(), "questionmark.circle");
    EXPECT_EQ(first.color(), QColor(245, 166, 35));
}

TEST(HelpModel, topicsHaveIdsOfTheirOwn) {
    std::set<int> ids;
    for (const HelpTopic& topic : helpTopics()) ids.insert(topic.id);
    EXPECT_EQ(ids.size(), 12U);
}

TEST(HelpModel, withNoSelectionShowsTheFirst) {
    const HelpModel help;
    EXPECT_FALSE(help.selection().has_value());
    EXPECT_EQ(help.current(), 0);
    EXPECT_EQ(help.title().toStdString(), "Getting started");
    EXPECT_EQ(currentRows(help), std::vector<int>{0});
}

TEST(HelpModel, showsTheChosenTopicAndTellsTheTwoRowsThatChange) {
    HelpModel help;
    QSignalSpy current(&help, &HelpModel::currentChanged);
    QSignalSpy rows(&help, &HelpModel::dataChanged);
    help.select(5);
    EXPECT_EQ(help.selection(), 5);
    EXPECT_EQ(help.title().toStdString(), "Lens");
    EXPECT_EQ(currentRows(help), std::vector<int>{5});
    EXPECT_EQ(current.count(), 1);
    ASSERT_EQ(rows.count(), 2);
    EXPECT_EQ(rows[0][0].toModelIndex().row(), 0);
    EXPECT_EQ(rows[1][0].toModelIndex().row(), 5);
}

TEST(HelpModel, choosingWhatIsShownChangesNothingToSee) {
    HelpModel help;
    QSignalSpy current(&help, &HelpModel::currentChanged);
    help.select(0);
    EXPECT_EQ(help.selection(), 0);
    EXPECT_EQ(current.count(), 0);
}

TEST(HelpModel, choosesNothingWhereThereIsNoTopic) {
    HelpModel help;
    help.select(3);
    help.select(-1);
    help.select(12);
    EXPECT_EQ(help.current(), 3);
}

TEST(HelpModel, goesUpAndDownAndStaysAtTheEnds) {
    HelpModel help;
    help.selectPrevious();
    EXPECT_EQ(help.current(), 0);
    help.selectNext();
    EXPECT_EQ(help.current(), 1);
    help.selectLast();
    EXPECT_EQ(help.current(), 11);
    help.selectNext();
    EXPECT_EQ(help.current(), 11);
    help.selectPrevious();
    EXPECT_EQ(help.current(), 10);
    help.selectFirst();
    EXPECT_EQ(help.current(), 0);
}

TEST(HelpModel, hasNothingOutsideItsRowsAndRoles) {
    const HelpModel help;
    EXPECT_FALSE(help.data(help.index(12), HelpModel::titleRole).isValid());
    EXPECT_FALSE(help.data(help.index(0), Qt::DecorationRole).isValid());
    EXPECT_EQ(help.rowCount(help.index(0)), 0);
    EXPECT_EQ(help.listName().toStdString(), "Topics");
}

}  // namespace zelk
