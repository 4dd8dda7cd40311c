// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "TextsOf.h"
#include "ViewFixture.h"
#include "ui/screens/help/HelpModel.h"

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

class HelpWindowTest : public ViewFixture {
protected:
    ~HelpWindowTest() override { close(); }

    void open(QSize size = {760, 520}) { show(QStringLiteral("import Zelk.App\nHelpWindow {}"), size); }
    HelpModel& help() { return *window().property("help").value<HelpModel*>(); }
    bool shows(const std::string& text) {
        const std::vector<std::string> texts = seenTexts();
        return std::find(texts.begin(), texts.end(), text) != texts.end();
    }

private:
    const TextsOf texts_{macOS};
};

}  // namespace

TEST_F(HelpWindowTest, showsTopicListAndCurrentTopic) {
    open();
    std::vector<std::string> titles;
    for (const Topic& topic : topics()) titles.push_back(topic.title);
    for (int row = 0; row < 12; ++row) {
        const Topic& topic = topics()[static_cast<std::size_t>(row)];
        help().select(row);
        settle();
        std::vector<std::string> expected = titles;
        expected.push_back(topic.title);
        expected.push_back(topic.lead);
        expected.insert(expected.end(), topic.paragraphs.begin(), topic.paragraphs.end());
        EXPECT_EQ(seenTexts(), expected);
    }
}

TEST_F(HelpWindowTest, showsTintedSymbolInListAndOnPage) {
    open();
    for (int row = 0; row < 12; ++row) {
        const Topic& topic = topics()[static_cast<std::size_t>(row)];
        help().select(row);
        settle();
        int tinted = 0;
        for (QQuickItem* item : seen())
            if (const auto* symbol = qobject_cast<SymbolItem*>(item);
                symbol != nullptr && symbol->name().toStdString() == topic.symbol && symbol->color() == topic.tint)
                ++tinted;
        const auto sharing = std::count_if(topics().begin(), topics().end(),
                                           [&](const Topic& other) { return other.symbol == topic.symbol; });
        EXPECT_EQ(tinted, sharing + 1) << topic.title;
    }
}

TEST_F(HelpWindowTest, symbolsOfTheListGrowWithItsTexts) {
    open();
    ASSERT_NE(symbol("speedometer"), nullptr);
    EXPECT_EQ(symbol("speedometer")->size(), sideBesideText(14)) << "as in the sidebar";
    singleton<TextScale>("TextScale").setFactor(1.5);
    settle();
    EXPECT_EQ(symbol("speedometer")->size(), sideBesideText(1.5 * 14));
}

TEST_F(HelpWindowTest, opensWithFirstTopicFocused) {
    open();
    EXPECT_EQ(focusName(), "Getting started");
    EXPECT_TRUE(shows("Zelk surveys your drive, shows what's using space, and helps you reclaim it safely."));
}

TEST_F(HelpWindowTest, arrowsHomeAndEndSelectTopics) {
    open();
    press(Qt::Key_Down);
    EXPECT_EQ(focusName(), "Survey");
    EXPECT_TRUE(focusIsRinged());
    EXPECT_TRUE(shows("The home dashboard — your drive at a glance."));
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    EXPECT_EQ(focusName(), "Getting started");
    press(Qt::Key_End);
    EXPECT_EQ(focusName(), "Privacy & trust");
    EXPECT_TRUE(shows("Zelk works entirely on your Mac."));
    press(Qt::Key_Down);
    EXPECT_EQ(focusName(), "Privacy & trust");
    press(Qt::Key_Home);
    EXPECT_EQ(focusName(), "Getting started");
}

TEST_F(HelpWindowTest, scrollsToFocusedTopic) {
    open({760, 300});
    for (int row = 0; row < 12; ++row) {
        expectFocusInSight();
        press(Qt::Key_Down);
    }
    press(Qt::Key_Home);
    expectFocusInSight();
}

TEST_F(HelpWindowTest, onlyCurrentTopicIsATabStop) {
    open();
    help().select(3);
    settle();
    view().forceActiveFocus();
    const std::vector<std::string> order = tabOrder();
    EXPECT_EQ(std::count(order.begin(), order.end(), "Clutter"), 1);
    EXPECT_EQ(std::count(order.begin(), order.end(), "Getting started"), 0);
}

TEST_F(HelpWindowTest, clickSelectsTopic) {
    open();
    QQuickItem* lens = showing("Lens");
    ASSERT_NE(lens, nullptr);
    tour::clickAt(window(), lens->mapToScene(lens->boundingRect().center()));
    EXPECT_EQ(help().current(), 5);
    settle();
    EXPECT_TRUE(shows("See where your space went."));
}

TEST_F(HelpWindowTest, topicIsASelectedListItem) {
    open();
    QAccessibleInterface* row = QAccessible::queryAccessibleInterface(window().activeFocusItem());
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->role(), QAccessible::ListItem);
    EXPECT_TRUE(row->state().selected);
    expectAllControlsNamed();
}

TEST_F(HelpWindowTest, newTopicStartsAtTop) {
    open({760, 260});
    QQuickItem* page = find("helpPage");
    ASSERT_NE(page, nullptr);
    page->setProperty("contentY", 60);
    help().select(2);
    settle();
    EXPECT_EQ(page->property("contentY").toReal(), 0);
}

TEST_F(HelpWindowTest, clipsNoTopicInLargeText) {
    singleton<TextScale>("TextScale").setFactor(1.5);
    open();
    for (int row = 0; row < 12; ++row) {
        help().select(row);
        settle();
        expectNoTextClipped();
    }
}

}  // namespace zelk
