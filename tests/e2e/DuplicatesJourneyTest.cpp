// SPDX-License-Identifier: MIT
// Finds duplicates in the real window and keeps one of each, with the mouse, with the keyboard alone, and on a real
// disk.
#include <gmock/gmock.h>

#include <QTemporaryDir>
#include <filesystem>

#include "ReclaimHands.h"
#include "ScreenFaults.h"
#include "ShellFixture.h"
#include "fakes/DuplicatesHome.h"
#include "fakes/TestFiles.h"
#include "fakes/TrashContent.h"
#include "platform/NativePlatform.h"

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Strings = std::vector<std::string>;

class DuplicatesJourney : public ShellFixture {
protected:
    DuplicatesJourney() { fakes::fillWithDuplicates(machine); }

    DuplicatesModel& duplicates() { return model().duplicates(); }
    Strings rows() { return texts(window(), "duplicateList", "text"); }
    void finishSearch() {
        runUntil([this] { return !duplicates().loading(); });
        window().grabWindow();
    }
    void finishRemoval() {
        runUntil([this] { return !model().removals().underWay(); });
        runWhatIsThere();
        window().grabWindow();
    }
};

}  // namespace

TEST_F(DuplicatesJourney, findsAndKeepsFirstWithMouse) {
    shell();
    click("sidebarDuplicates");
    EXPECT_TRUE(
        shows(QStringLiteral("Find byte-identical files — duplicate downloads, copied media, repeated exports "
                             "— and keep just one.")));
    click("moduleScanButton");
    finishSearch();
    EXPECT_TRUE(shows(QStringLiteral("2 sets · 8 MB recoverable")));
    EXPECT_THAT(rows(), ElementsAre("3 copies · 3 MB each", "/home/me/copies/film 2.mov", "/home/me/copies/film 3.mov",
                                    "/home/me/copies/film.mov", "2 copies · 2 MB each", "/home/me/papers/a.pdf",
                                    "/home/me/papers/b.pdf"));
    click("revealCopy1");
    EXPECT_THAT(machine.workspace.revealed, ElementsAre(ElementsAre("/home/me/copies/film 2.mov")));
    click("keepFirst0");
    finishRemoval();
    EXPECT_THAT(machine.trash.trashed(), ElementsAre("/home/me/copies/film 3.mov", "/home/me/copies/film.mov"));
    EXPECT_THAT(rows(), ElementsAre("2 copies · 2 MB each", "/home/me/papers/a.pdf", "/home/me/papers/b.pdf"));
    click("keepFirst0");
    finishRemoval();
    EXPECT_TRUE(shows(QStringLiteral("No duplicates")));

    click("undoRemoval");
    runUntil([this] { return !model().removalUndo().underWay(); });
    EXPECT_THAT(rows(), ElementsAre("2 copies · 2 MB each", "/home/me/papers/a.pdf", "/home/me/papers/b.pdf"));
}

TEST_F(DuplicatesJourney, worksWithKeyboardAlone) {
    shell();
    press(Qt::Key_7, Qt::ControlModifier);
    ASSERT_EQ(model().selection(), Screen::duplicates);
    tabTo(window(), "moduleScanButton");
    press(Qt::Key_Return);
    finishSearch();
    tabTo(window(), "duplicateList");
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_THAT(machine.workspace.revealed, ElementsAre(ElementsAre("/home/me/copies/film 2.mov")));
    press(Qt::Key_Home);
    press(Qt::Key_Return);
    finishRemoval();
    EXPECT_THAT(machine.trash.trashed(), ElementsAre("/home/me/copies/film 3.mov", "/home/me/copies/film.mov"));
    press(Qt::Key_Space);
    finishRemoval();
    EXPECT_TRUE(duplicates().groups().empty());
    tabTo(window(), "undoRemoval");
    press(Qt::Key_Return);
    runUntil([this] { return !model().removalUndo().underWay(); });
    EXPECT_EQ(rows().size(), 3U);
    tabTo(window(), "findAgain");
    press(Qt::Key_Return);
    finishSearch();
    EXPECT_EQ(rows().size(), 3U);
}

TEST_F(DuplicatesJourney, searchGoesOnWhileAnotherModuleIsLookedAt) {
    shell();
    click("sidebarDuplicates");
    machine.tasks.hold();
    click("moduleScanButton");
    EXPECT_TRUE(shows(QStringLiteral("Hashing candidates… this can take a moment")));
    click("sidebarTools");
    machine.tasks.release();
    finishSearch();
    click("sidebarDuplicates");
    EXPECT_EQ(rows().size(), 7U);
}

TEST_F(DuplicatesJourney, quittingNeverWaitsForASearch) {
    shell();
    click("sidebarDuplicates");
    machine.tasks.hold();
    click("moduleScanButton");
    press(Qt::Key_Q, Qt::ControlModifier);
    runWhatIsThere();
    EXPECT_EQ(quits, 1);
    machine.tasks.release();
}

TEST_F(DuplicatesJourney, quittingAsksDuringARemoval) {
    shell();
    click("sidebarDuplicates");
    click("moduleScanButton");
    finishSearch();
    machine.tasks.hold();
    click("keepFirst0");
    press(Qt::Key_Q, Qt::ControlModifier);
    runWhatIsThere();
    EXPECT_EQ(quits, 0);
    machine.tasks.release();
    finishRemoval();
}

TEST_F(DuplicatesJourney, hasNoFaultInAnySizeOrTheme) {
    for (int set = 0; set < 12; ++set)
        for (int copy = 0; copy < 2 + set; ++copy)
            fakes::addFilled(machine,
                             "/home/me/sets/" + std::string(30, static_cast<char>('a' + set)) + "/" +
                                 std::to_string(copy) + std::string(60, 'n'),
                             static_cast<char>('A' + set), 2'000'000);
    shell();
    click("sidebarDuplicates");
    const auto look = [this](const char* state) {
        inEverySize(state, [this](const std::string& where) { expectNoFaultsWithRing(where); });
    };
    const auto after = [this](Qt::Key key, const char* state) {
        inEverySize(state, [&](const std::string& where) {
            window().grabWindow();  // applies pending layout
            press(key);
            expectNoFaultsWithRing(where);
        });
    };
    look("idle");
    machine.tasks.hold();
    click("moduleScanButton");
    look("scanning");
    machine.tasks.release();
    finishSearch();
    look("results");
    tabTo(window(), "duplicateList");
    after(Qt::Key_Home, "with the keyboard");
    after(Qt::Key_End, "at the end");
    press(Qt::Key_Home);
    press(Qt::Key_Return);
    finishRemoval();
    look("after a removal");
    while (!duplicates().groups().empty()) {
        click("keepFirst0");
        finishRemoval();
    }
    look("empty");
}

/// On a real disk, with its Trash, and with what another process does before the button is pressed.
TEST(RealDuplicatesJourney, keepsTheFirstOfEverySet) {
    const QTemporaryDir folder;
    const std::string home = std::filesystem::canonical(folder.path().toStdString()).string();
    const auto put = [&](const std::string& below, char letter) {
        std::filesystem::create_directories(std::filesystem::path(home + below).parent_path());
        fakes::writeFile(home + below, std::string(2'000'000, letter));
    };
    for (const char* path : {"/a/1", "/a/2", "/b/1", "/.hidden/1"}) put(path, 'x');
    for (const char* path : {"/a/y1", "/b/y2"}) put(path, 'y');
    for (const char* path : {"/b/z1", "/b/z2"}) put(path, 'z');
    std::filesystem::create_hard_link(home + "/a/1", home + "/b/linked");

    NativePlatform native(home);
    {
        AppModel model(native.platform());
        model.setSelection(Screen::duplicates);
        MainWindow main(model);
        main.motion().setReduced(true);
        main.show();
        runUntil([&] { return main.isUp(); });
        ASSERT_TRUE(tour::clickOn(main.window(), QStringLiteral("moduleScanButton")));
        runUntil([&] { return !model.duplicates().loading(); });
        ASSERT_EQ(model.duplicates().groups().size(), 3U);
        EXPECT_EQ(model.duplicates().groups()[0].paths,
                  (Strings{home + "/a/1", home + "/a/2", home + "/b/1", home + "/b/linked"}));
        put("/a/y1", 'Y');  // the one that would be kept
        for (int set = 0; set < 3; ++set) {
            main.window().grabWindow();
            ASSERT_TRUE(tour::clickOn(main.window(), QStringLiteral("keepFirst0")));
        }
        runUntil([&] { return !model.removals().underWay(); });
        EXPECT_TRUE(model.duplicates().groups().empty());
    }
    EXPECT_TRUE(native.drain(60));
    EXPECT_EQ(fakes::namesIn(home + "/a"), (std::set<std::string>{"1", "y1"}));
    EXPECT_EQ(fakes::namesIn(home + "/b"), (std::set<std::string>{"y2", "z1"}));
#ifndef Q_OS_MACOS
    EXPECT_THAT(fakes::restorable(home + "/.local/share/Trash"),
                ElementsAre(testing::Key(home + "/a/2"), testing::Key(home + "/b/1"), testing::Key(home + "/b/linked"),
                            testing::Key(home + "/b/z2")));
#endif
}

}  // namespace zelk
