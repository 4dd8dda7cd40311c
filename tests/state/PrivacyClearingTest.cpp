// SPDX-License-Identifier: MIT
// Clearing what browsers left behind, and putting it back.
#include <gmock/gmock.h>

#include "PrivacyFixture.h"
#include "platform/Translation.h"

namespace zelk {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

using Strings = std::vector<std::string>;

// Clearing.

TEST_F(PrivacyOfMac, clearingMovesEveryPathOfTheChosenOnes) {
    scan();
    privacy().setSelected("SafariHistory", true);
    clear();
    EXPECT_THAT(machine.trash.trashed(),
                ElementsAre(library + "Caches/com.apple.Safari", library + "Caches/com.apple.WebKit.WebContent",
                            library + "Caches/Google/Chrome", library + "Safari/History.db",
                            library + "Safari/History.db-wal"));
    EXPECT_THAT(identities(), ElementsAre("ChromeCookies", "SystemRecent items"));
    EXPECT_THAT(privacy().selected(), IsEmpty());
    EXPECT_TRUE(machine.files.identity(library + "Safari/History.db-shm")) << "the table does not name it";
}

TEST_F(PrivacyOfMac, clearingChangesTheListAtOnceAndMovesInATask) {
    scan();
    machine.tasks.hold();
    privacy().clearSelected();
    EXPECT_THAT(identities(), ElementsAre("SafariHistory", "ChromeCookies", "SystemRecent items"));
    EXPECT_THAT(privacy().selected(), IsEmpty());
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
    EXPECT_TRUE(model().removals().underWay()) << "quitting asks first";
    EXPECT_EQ(model().removals().progress().items, 3U);
    EXPECT_EQ(model().removalUndo().moved(), 0U);
    machine.tasks.release();
    runUntil([this] { return !model().removals().underWay(); });
    runWhatIsThere();
    EXPECT_EQ(model().removalUndo().moved(), 3U);
    EXPECT_EQ(model().removalUndo().source(), RemovalUndo::Source::traces);
}

TEST_F(PrivacyOfMac, clearingTouchesTheOnePathThatExists) {
    machine.files.erase(library + "Caches/com.apple.WebKit.WebContent");
    scan();
    selectOnly("SafariCaches");
    clear();
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(library + "Caches/com.apple.Safari"));
}

TEST_F(PrivacyOfMac, failureIsSilentAndTheTraceLeavesTheListAllTheSame) {
    scan();
    machine.files.failing = [this](const auto& call) {
        return call.operation == "trash" && call.path == library + "Caches/com.apple.Safari";
    };
    clear();
    EXPECT_THAT(machine.trash.trashed(),
                ElementsAre(library + "Caches/com.apple.WebKit.WebContent", library + "Caches/Google/Chrome"));
    EXPECT_THAT(identities(), Not(Contains("SafariCaches")));
    EXPECT_EQ(model().removalUndo().moved(), 2U);
}

TEST_F(PrivacyOfMac, clearingNothingDoesNothing) {
    scan();
    for (const std::string& one : identities()) privacy().setSelected(one, false);
    const Emissions listed(privacy(), &PrivacyModel::tracesChanged);
    clear();
    EXPECT_EQ(listed.count(), 0);
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
    EXPECT_EQ(identities().size(), 5U);
}

TEST_F(PrivacyOfMac, afterEverythingIsClearedAScanMeasuresAgain) {
    scan();
    clearAll();
    EXPECT_THAT(privacy().traces(), IsEmpty());
    EXPECT_TRUE(privacy().hasScanned());
    machine.files.addFile(library + "Caches/Firefox/data", {}, 9'000'000);
    scan();
    EXPECT_THAT(identities(), ElementsAre("FirefoxCaches"));
    EXPECT_THAT(privacy().selected(), ElementsAre("FirefoxCaches"));
}

TEST_F(PrivacyOfMac, scanWaitsForTheClearing) {
    scan();
    for (const std::string& one : identities()) privacy().setSelected(one, true);
    machine.tasks.hold();
    privacy().clearSelected();
    privacy().scanTraces();
    EXPECT_TRUE(privacy().loading());
    EXPECT_EQ(machine.tasks.waiting().size(), 1U) << "what is being moved is not measured";
    machine.tasks.release();
    runUntil([this] { return !privacy().loading(); });
    EXPECT_THAT(privacy().traces(), IsEmpty());
}

TEST_F(PrivacyOfMac, whatAStopKeptFromBeingTriedComesBack) {
    scan();
    machine.files.failing = [this](const auto& call) {
        if (call.operation == "trash" && call.path == library + "Caches/com.apple.WebKit.WebContent")
            model().removals().stop();
        return false;
    };
    clear();
    EXPECT_THAT(machine.trash.trashed(),
                ElementsAre(library + "Caches/com.apple.Safari", library + "Caches/com.apple.WebKit.WebContent"));
    EXPECT_THAT(identities(), ElementsAre("ChromeCaches", "SafariHistory", "ChromeCookies", "SystemRecent items"));
    EXPECT_EQ(trace("ChromeCaches").size, 4'000'000U);
    EXPECT_THAT(privacy().selected(), IsEmpty());
}

// Undoing.

TEST_F(PrivacyOfMac, undoRestoresAndListsAgain) {
    scan();
    const std::vector<PrivacyModel::Trace> before = privacy().traces();
    clear();
    undo();
    EXPECT_EQ(machine.trash.restored().size(), 3U);
    EXPECT_EQ(privacy().traces(), before) << "with their paths in the same order";
    EXPECT_THAT(privacy().selected(), IsEmpty());
}

TEST_F(PrivacyOfMac, undoListsWhatCouldBeRestored) {
    scan();
    clear();
    machine.files.addFile(library + "Caches/com.apple.Safari/new");  // made anew by the browser
    undo();
    EXPECT_THAT(trace("SafariCaches").paths, ElementsAre(library + "Caches/com.apple.WebKit.WebContent"));
    EXPECT_EQ(trace("SafariCaches").size, 1'000'000U);
}

TEST_F(PrivacyOfMac, whatIsRestoredDuringAScanIsListed) {
    scan();
    clearAll();
    machine.tasks.hold();
    privacy().scanTraces();
    machine.tasks.runNext();  // measures nothing; the result is on its way
    model().undoLastRemoval();
    machine.tasks.runNext();
    machine.tasks.release();
    runUntil([this] { return !privacy().loading() && !model().removalUndo().underWay(); });
    EXPECT_EQ(identities().size(), 5U);
    EXPECT_EQ(trace("SafariCaches").size, 6'000'000U);
}

TEST_F(PrivacyOfMac, scanKeepsWhatAnUndoListedBeforeItsResult) {
    scan();
    clearAll();
    undoWhileAScanWaits();
    EXPECT_TRUE(privacy().loading());
    for (const char* gone : {"Caches/com.apple.Safari", "Caches/Google/Chrome"}) machine.files.erase(library + gone);
    machine.tasks.release();
    runUntil([this] { return !privacy().loading(); });
    // It knows of two more than the scan saw, and counts the others once.
    EXPECT_EQ(trace("SafariCaches").size, 6'000'000U);
    EXPECT_EQ(trace("SafariHistory").size, 3'000'000U);
    EXPECT_THAT(privacy().selected(), ElementsAre("ChromeCaches", "SafariCaches"));
}

TEST_F(PrivacyOfMac, whatIsClearedDuringAScanIsMeasuredAfterwards) {
    scan();
    clearAll();
    undoWhileAScanWaits();
    privacy().setSelected("SafariCaches", true);
    privacy().clearSelected();
    machine.tasks.runNext();  // measures what is about to be moved
    runWhatIsThere();
    EXPECT_TRUE(privacy().loading());
    machine.tasks.release();
    runUntil([this] { return !privacy().loading(); });
    EXPECT_THAT(identities(), ElementsAre("ChromeCaches", "SafariHistory", "ChromeCookies", "SystemRecent items"));
}

TEST_F(PrivacyOfMac, onlyTheLastMeasuringCounts) {
    scan();
    clearAll();
    undoWhileAScanWaits();
    runWhatIsThere();
    while (machine.tasks.waiting().size() > 1) machine.tasks.runAt(1);  // what else follows the undo
    privacy().setSelected("SafariCaches", true);
    privacy().clearSelected();
    machine.tasks.runAt(1);  // clears, which has it measured anew
    runUntil([this] { return machine.tasks.waiting().size() == 2; });
    machine.files.addFile(library + "Caches/Firefox/data", {}, 9'000'000);
    machine.tasks.runNext();  // the first one
    runWhatIsThere();
    EXPECT_TRUE(privacy().loading());
    machine.tasks.release();
    runUntil([this] { return !privacy().loading(); });
    EXPECT_THAT(identities(), Contains("FirefoxCaches"));
}

// Linux.

TEST_F(PrivacyOfLinux, clearingEachTraceAloneLeavesEverythingElse) {
    scan();
    const Strings all = identities();
    for (const std::string& one : all) {
        selectOnly(one);
        clear();
        EXPECT_THAT(identities(), Not(Contains(one)));
        for (const char* kept : {"places.sqlite", "places.sqlite-wal", "logins.json", "key4.db", "cert9.db"})
            EXPECT_TRUE(machine.files.identity(fakes::firefoxOfLinux + "/b.used/" + kept)) << kept << " after " << one;
        for (const char* kept : {"Local State", "Default/Bookmarks", "Default/Login Data", "Default/Preferences"})
            EXPECT_TRUE(machine.files.identity(fakes::chromiumOfLinux + "/" + kept)) << kept << " after " << one;
        EXPECT_TRUE(machine.files.identity(home + "/.local/share/epiphany/bookmarks.gvdb")) << one;
        undo();
        EXPECT_EQ(identities(), all);
    }
}

TEST_F(PrivacyOfLinux, companionsGoAndComeBackWithTheirDatabase) {
    scan();
    selectOnly("FirefoxCookies");
    const PrivacyModel::Trace before = trace("FirefoxCookies");
    clear();
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(idle, used, used + "-wal"));
    EXPECT_EQ(model().removalUndo().moved(), 3U);
    undo();
    EXPECT_THAT(machine.trash.restored(), ElementsAre(used, used + "-wal", idle));
    EXPECT_EQ(trace("FirefoxCookies"), before);
}

TEST_F(PrivacyOfLinux, companionsStayInTheTrashIfTheirBrowserMadeAnotherDatabase) {
    scan();
    selectOnly("FirefoxCookies");
    clear();
    machine.files.addFile(used);
    std::vector<RemovalUndo::Outcome> outcomes;
    QObject::connect(&model().removalUndo(), &RemovalUndo::ended, &model(),
                     [&](const RemovalUndo::Outcome& outcome) { outcomes.push_back(outcome); });
    undo();
    EXPECT_THAT(machine.trash.restored(), ElementsAre(idle));
    EXPECT_FALSE(machine.files.identity(used + "-wal"));
    ASSERT_EQ(outcomes.size(), 1U);
    EXPECT_THAT(outcomes.front().failures,
                ElementsAre(used + " is taken", "“cookies.sqlite-wal” belongs to something that was not restored."));
    EXPECT_THAT(trace("FirefoxCookies").paths, ElementsAre(idle));
}

TEST_F(PrivacyOfLinux, whyACompanionStaysIsSaidInTheUsersLanguage) {
    scan();
    selectOnly("FirefoxCookies");
    clear();
    machine.files.addFile(used);
    std::vector<RemovalUndo::Outcome> outcomes;
    QObject::connect(&model().removalUndo(), &RemovalUndo::ended, &model(),
                     [&](const RemovalUndo::Outcome& outcome) { outcomes.push_back(outcome); });
    setTranslation([](const char*, const char* text) {
        return std::string(text).starts_with("“%1” belongs") ? std::string("%1: allein") : std::string(text);
    });
    undo();
    setTranslation(nullptr);
    ASSERT_EQ(outcomes.size(), 1U);
    EXPECT_THAT(outcomes.front().failures, Contains("cookies.sqlite-wal: allein"));
}

TEST_F(PrivacyOfLinux, oneCompanionThatStaysDoesNotKeepTheOthers) {
    machine.files.addFile(used + "-shm", {}, 10);
    scan();
    selectOnly("FirefoxCookies");
    clear();
    machine.files.failing = [this](const auto& call) {
        return call.operation == "restore" && call.path == used + "-wal";
    };
    undo();
    EXPECT_THAT(machine.trash.restored(), ElementsAre(used, used + "-shm", idle));
}

TEST_F(PrivacyOfLinux, companionsThatWereNotTriedComeBackToo) {
    scan();
    selectOnly("FirefoxCookies");
    machine.files.failing = [this](const auto& call) {
        if (call.operation == "trash" && call.path == idle) model().removals().stop();
        return false;
    };
    clear();
    EXPECT_THAT(trace("FirefoxCookies").paths, ElementsAre(used, used + "-wal"));
    EXPECT_EQ(trace("FirefoxCookies").size, 5'000'000U);
}

}  // namespace
}  // namespace zelk
