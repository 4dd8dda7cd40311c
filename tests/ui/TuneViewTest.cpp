// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <QTest>

#include "TuneViewFixture.h"

namespace zelk {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

using Strings = std::vector<std::string>;

const std::string linuxNote =
    "Drops the caches of files. They count as free already, so the figure “used” will hardly move, and files are read "
    "from the disk again for a while.";

class TuneWindow : public TuneViewFixture {};

}  // namespace

TEST_F(TuneWindow, showsIdleFace) {
    open();
    EXPECT_THAT(seenTexts(),
                ElementsAre("Tune", "Check memory pressure, free up RAM, flush caches, and trim startup items.",
                            "Check this Mac"));
    click("moduleScanButton");
    EXPECT_TRUE(model().tune().hasScanned());
    EXPECT_THAT(seenTexts(), Contains("startup & memory"));
}

TEST_F(TuneWindow, showsItsTextsInOrder) {
    machine.vitals.memoryStats = {16'000'000'000, 11'500'000'000, 4'500'000'000, 0, 0};
    openScanned();
    EXPECT_EQ(seenTexts(), (Strings{"Tune",
                                    "startup & memory",
                                    "Memory",
                                    "pressure: elevated",
                                    "used",
                                    "11.5 GB",
                                    "free",
                                    "4.5 GB",
                                    "total",
                                    "16 GB",
                                    "Free up RAM",
                                    "Maintenance",
                                    "Flush DNS cache",
                                    "Refresh memory",
                                    "Background items (4)",
                                    "Processes and apps that run in the background. You may not need all of them.",
                                    "All",
                                    "None",
                                    "Search",
                                    "Backup",
                                    fakes::ownAgents + "/b.plist",
                                    "cloud",
                                    fakes::ownAgents + "/c.plist",
                                    "Daemon",
                                    fakes::systemAgents + "/d.plist",
                                    "system",
                                    "Sync",
                                    fakes::ownAgents + "/s.plist"}));
    for (const char* name : {"network", "arrow.clockwise", "magnifyingglass", "speedometer"})
        EXPECT_NE(symbol(name), nullptr) << name;
}

TEST_F(TuneWindow, saysOnLinuxWhatFreeingDoes) {
    const TextsOf here(desktopLinux);
    openScanned();
    const Strings texts = seenTexts();
    const auto button = std::find(texts.begin(), texts.end(), "Free up RAM");
    ASSERT_NE(button, texts.end());
    EXPECT_EQ(*(button + 1), linuxNote);
}

TEST_F(TuneWindow, pressureAndTagAreSmallAndInTheirColours) {
    openScanned();
    EXPECT_EQ(sizeOf("pressure: normal"), 11);
    EXPECT_EQ(colorOf("pressure: normal"), QColor(255, 107, 94));
    EXPECT_EQ(sizeOf("system"), 10);
}

TEST_F(TuneWindow, leversKeepFocusAndRingOverTheirCommands) {
    openScanned();
    for (const char* lever : {"freeMemory", "flushDNS"}) {
        find(lever)->forceActiveFocus(Qt::TabFocusReason);
        machine.tasks.hold();
        press(Qt::Key_Return);
        EXPECT_TRUE(tune().busy());
        EXPECT_FALSE(find(lever)->hasActiveFocus());
        machine.tasks.release();
        runUntil([this] { return !tune().busy(); });
        settle();
        EXPECT_EQ(window().activeFocusItem(), find(lever)) << lever;
        EXPECT_TRUE(focusIsRinged()) << lever;
    }
}

TEST_F(TuneWindow, leversAreDisabledWhileBusy) {
    openScanned();
    machine.tasks.hold();
    click("freeMemory");
    EXPECT_TRUE(tune().busy());
    for (const char* lever : {"freeMemory", "flushDNS", "refreshMemory"})
        EXPECT_FALSE(find(lever)->isEnabled()) << lever;
    for (const char* other : {"chooseAllAgents", "chooseNoAgents", "agentSearch"})
        EXPECT_TRUE(find(other)->isEnabled()) << other;
    ASSERT_NE(find("leverSpinner"), nullptr);
    EXPECT_EQ(nameOf(find("leverSpinner")), "Running");
    machine.tasks.release();
    runUntil([this] { return !tune().busy(); });
    settle();
    for (const char* lever : {"freeMemory", "flushDNS", "refreshMemory"})
        EXPECT_TRUE(find(lever)->isEnabled()) << lever;
    EXPECT_EQ(find("leverSpinner"), nullptr);
    EXPECT_THAT(seenTexts(), Contains("done"));
}

TEST_F(TuneWindow, refreshShowsNewFigures) {
    openScanned();
    machine.vitals.memoryStats = {10'000'000'000, 9'500'000'000, 500'000'000, 0, 0};
    click("refreshMemory");
    expectTexts({"pressure: high", "9.5 GB", "500 MB", "10 GB"});
}

TEST_F(TuneWindow, tabVisitsEverythingInOrder) {
    openScanned();
    tune().chooseAll();
    settle();
    tabTo("freeMemory");
    EXPECT_THAT(tabOrder(), ElementsAre("Free up RAM", "Flush DNS cache", "Refresh memory", "All", "None", "Search",
                                        "Backup, " + fakes::ownAgents + "/b.plist", "Remove 3 selected"));
    expectAllControlsNamed();
}

TEST_F(TuneWindow, rowsAreTickBoxes) {
    openScanned();
    EXPECT_EQ(said(0).role(), QAccessible::CheckBox);
    EXPECT_TRUE(said(0).state().checkable);
    EXPECT_FALSE(said(0).state().checked);
    EXPECT_EQ(descriptionOf(0), "");
    EXPECT_EQ(said(2).role(), QAccessible::ListItem);
    EXPECT_FALSE(said(2).state().checkable);
    EXPECT_EQ(descriptionOf(2), "Not removable: it belongs to the system.");
    EXPECT_FALSE(find("agentTick2")->isEnabled());
    EXPECT_TRUE(find("agentTick0")->isEnabled());
    EXPECT_THAT(namesInside(find("agentTick2")->parentItem()), IsEmpty()) << "the row itself has said it";
    tune().toggle(0);
    settle();
    EXPECT_TRUE(said(0).state().checked);
}

TEST_F(TuneWindow, clickTicksRowUnlessItIsTheSystems) {
    openScanned();
    click("agentTick1");
    EXPECT_THAT(model().tune().selected(), ElementsAre(fakes::ownAgents + "/c.plist"));
    const QQuickItem* daemon = showing("Daemon");
    tour::clickAt(window(), daemon->mapToScene({4, 4}));
    settle();
    EXPECT_EQ(model().tune().selected().size(), 1U);
    const QQuickItem* sync = showing("Sync");
    tour::clickAt(window(), sync->mapToScene({4, 4}));
    settle();
    EXPECT_EQ(model().tune().selected().size(), 2U);
    EXPECT_EQ(current(), 3);
}

TEST_F(TuneWindow, keysTickRows) {
    openScanned();
    tabTo("agentList");
    press(Qt::Key_Home);
    for (const Qt::Key key :
         {Qt::Key_Space, Qt::Key_Down, Qt::Key_Return, Qt::Key_Down, Qt::Key_Space, Qt::Key_Down, Qt::Key_Enter})
        press(key);
    EXPECT_THAT(model().tune().selected(), ElementsAre(fakes::ownAgents + "/b.plist", fakes::ownAgents + "/c.plist",
                                                       fakes::ownAgents + "/s.plist"));
    EXPECT_THAT(seenTexts(), Contains("Remove 3 selected"));
    press(Qt::Key_Space);
    EXPECT_THAT(seenTexts(), Contains("Remove 2 selected"));
}

TEST_F(TuneWindow, allAndNoneTickRows) {
    openScanned();
    EXPECT_EQ(find("removeAgents"), nullptr);
    click("chooseAllAgents");
    EXPECT_THAT(seenTexts(), Contains("Remove 3 selected"));
    click("chooseNoAgents");
    EXPECT_EQ(find("removeAgents"), nullptr);
}

TEST_F(TuneWindow, typingFiltersRows) {
    openScanned();
    tabTo("agentSearch");
    type("CLOUD");
    EXPECT_THAT(seenTexts(), Contains("cloud"));
    EXPECT_THAT(seenTexts(), Not(Contains("Backup")));
    EXPECT_THAT(seenTexts(), Contains("Background items (4)"));
    type("x");
    EXPECT_THAT(seenTexts(), Contains("Nothing here."));
    EXPECT_THAT(seenTexts(), Not(Contains("cloud")));
    press(Qt::Key_Escape);
    EXPECT_THAT(seenTexts(), Contains("Backup"));
    EXPECT_THAT(seenTexts(), Not(Contains("Nothing here.")));
}

TEST_F(TuneWindow, fieldStaysInSightWhileItsSearchTakesTheRows) {
    addMany(60);
    openScanned({900, 420});
    tabTo("agentSearch");
    const std::string words = "item 1059 of nobody";
    for (const char letter : words) {
        type({letter});
        settle();  // the rows and the head have their new heights now
        expectFocusInSight();
    }
    EXPECT_THAT(seenTexts(), Contains("Nothing here."));
    press(Qt::Key_Escape);
    settle();
    expectFocusInSight();
}

TEST_F(TuneWindow, nothingHereWithoutItems) {
    machine.locations.itemFolders.clear();
    openScanned();
    EXPECT_THAT(seenTexts(), Contains("Nothing here."));
    EXPECT_THAT(seenTexts(), Contains("Background items (0)"));
}

TEST_F(TuneWindow, findKeyGoesToTheSearchField) {
    addMany(60);
    openScanned({900, 500});
    tabTo("agentList");
    press(Qt::Key_End);
    QTest::keySequence(&window(), QKeySequence(QKeySequence::Find));
    settle();
    EXPECT_EQ(focusName(), "Search");
    expectFocusInSight();
}

TEST_F(TuneWindow, removalGoesToTheTrashAndKeepsTheFocusInTheList) {
    openScanned();
    tabTo("agentList");
    press(Qt::Key_Home);
    press(Qt::Key_Down);
    press(Qt::Key_Space);
    tabTo("removeAgents");
    press(Qt::Key_Return);
    EXPECT_EQ(machine.trash.trashed(), Strings{fakes::ownAgents + "/c.plist"});
    EXPECT_TRUE(listHasKeyboard());
    EXPECT_EQ(current(), 1);
    EXPECT_TRUE(list().property("ringed").toBool());
    expectTexts({"Background items (3)", "Moved to the Trash", "Undo"});
    EXPECT_THAT(seenTexts(), Not(Contains("cloud")));
    click("undoRemoval");
    runUntil([this] { return !model().removalUndo().underWay(); });
    settle();
    expectTexts({"Background items (4)", "cloud", "1 item was restored."});
}

TEST_F(TuneWindow, removalOfAllThatIsShownGoesToTheSearchField) {
    openScanned();
    tune().setSearch(QStringLiteral("cloud"));
    tune().toggle(0);
    settle();
    click("removeAgents");
    EXPECT_EQ(focusName(), "Search");
    EXPECT_THAT(seenTexts(), Contains("Nothing here."));
}

TEST_F(TuneWindow, onlyShownRowsAskForIcons) {
    addMany(300);
    openScanned();
    EXPECT_GT(machine.workspace.iconReads.size(), 3U);
    EXPECT_LT(machine.workspace.iconReads.size(), 40U);
    EXPECT_EQ(list().property("count").toInt(), 304);
}

TEST_F(TuneWindow, keysScrollRowsAndHeadTogether) {
    addMany(300);
    openScanned({900, 600});
    tabTo("agentList");
    press(Qt::Key_End);
    EXPECT_EQ(current(), 303);
    expectFocusInSight();
    press(Qt::Key_Home);
    expectFocusInSight();
    // Back at the head, whose controls scroll into view when the keyboard reaches them.
    press(Qt::Key_End);
    tabTo("freeMemory");
    expectFocusInSight();
    for (const char* stop :
         {"flushDNS", "refreshMemory", "chooseAllAgents", "chooseNoAgents", "agentSearch", "agentList"}) {
        tabTo(stop);
        expectFocusInSight();
    }
}

TEST_F(TuneWindow, pageKeysScrollFromTheHead) {
    addMany(300);
    openScanned({900, 500});
    tabTo("freeMemory");
    const auto y = [this] { return list().property("contentY").toReal(); };
    const double top = y();
    press(Qt::Key_PageDown);
    EXPECT_GT(y(), top + 200);
    press(Qt::Key_PageUp);
    EXPECT_EQ(y(), top);
}

TEST_F(TuneWindow, wheelOverTheHeadScrolls) {
    addMany(300);
    openScanned({900, 500});
    const double top = list().property("contentY").toReal();
    const QPointF place = showing("Memory")->mapToScene({2, 2});
    QWheelEvent wheel(place, window().mapToGlobal(place), {}, {0, -240}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&window(), &wheel);
    runUntil([&] { return list().property("contentY").toReal() > top; });
}

TEST_F(TuneWindow, elidesLongNamesAndPaths) {
    machine.files.addFile(fakes::systemAgents + "/" + std::string(200, 'p') + ".plist",
                          fakes::agentList(std::string(200, 'n')));
    openScanned({726, 900});
    QQuickItem* label = showing(std::string(200, 'n').c_str());
    ASSERT_NE(label, nullptr);
    EXPECT_TRUE(label->property("truncated").toBool());
    EXPECT_LT(label->mapToScene({label->width(), 0}).x(), 726 - 60);
}

TEST_F(TuneWindow, hasRoomForLargeTexts) {
    openScanned();
    answer("a line of the answer");
    for (const QSize size : {QSize(960 - 234, 620), QSize(960 - 60, 620), QSize(1400, 900)}) {
        for (const auto appearance : {AppModel::Appearance::dark, AppModel::Appearance::light}) {
            model().setAppearance(appearance);
            openScanned(size);
            for (const double factor : {1.0, 1.5}) {
                singleton<TextScale>("TextScale").setFactor(factor);
                settle();
                tabTo("freeMemory");
                press(Qt::Key_PageUp);
                expectNoTextClipped();
                tabTo("agentSearch");
                expectFocusInSight();
            }
            singleton<TextScale>("TextScale").setFactor(1);
        }
    }
}

TEST_F(TuneWindow, leavesNothingSelectableOfTheSystem) {
    openScanned();
    click("chooseAllAgents");
    click("removeAgents");
    EXPECT_THAT(machine.trash.trashed(), Not(Contains(fakes::systemAgents + "/d.plist")));
    EXPECT_THAT(seenTexts(), Contains("Daemon"));
    click("chooseAllAgents");
    EXPECT_THAT(model().tune().selected(), IsEmpty());
}

}  // namespace zelk
