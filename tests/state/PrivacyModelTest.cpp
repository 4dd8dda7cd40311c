// SPDX-License-Identifier: MIT
#include "state/PrivacyModel.h"

#include <gmock/gmock.h>

#include <QObject>

#include "fakes/PrivacyHome.h"
#include "state/AppModelFixture.h"

namespace zelk {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

using Strings = std::vector<std::string>;

/// How often a signal was emitted since this was made.
class Emissions {
public:
    Emissions(PrivacyModel& privacy, void (PrivacyModel::*signal)()) {
        QObject::connect(&privacy, signal, &context_, [this] { ++count_; });
    }
    int count() const { return count_; }

private:
    QObject context_;
    int count_ = 0;
};

class Privacy : public AppModelFixture {
protected:
    PrivacyModel& privacy() { return model().privacy(); }
    void scan() {
        privacy().scanTraces();
        runUntil([this] { return !privacy().loading(); });
    }
    void clear() {
        privacy().clearSelected();
        runUntil([this] { return !model().removals().underWay(); });
        runWhatIsThere();
    }
    void undo() {
        model().undoLastRemoval();
        runUntil([this] { return !model().removalUndo().underWay(); });
        runWhatIsThere();
    }
    Strings identities() {
        Strings all;
        for (const PrivacyModel::Trace& trace : privacy().traces()) all.push_back(trace.identity());
        return all;
    }
    PrivacyModel::Trace trace(const std::string& identity) {
        for (const PrivacyModel::Trace& one : privacy().traces())
            if (one.identity() == identity) return one;
        ADD_FAILURE() << "no " << identity;
        return {};
    }
    void selectOnly(const std::string& identity) {
        for (const std::string& one : identities()) privacy().setSelected(one, one == identity);
    }
    const std::string library = home + "/Library/";
};

class PrivacyOfMac : public Privacy {
protected:
    PrivacyOfMac() { fakes::fillWithTraces(machine); }
};

class PrivacyOfLinux : public Privacy {
protected:
    PrivacyOfLinux() { fakes::fillWithLinuxTraces(machine); }
    void refresh() {
        privacy().refreshRunning();
        runWhatIsThere();
    }
    const std::string used = fakes::firefoxOfLinux + "/b.used/cookies.sqlite";
    const std::string idle = fakes::firefoxOfLinux + "/a.idle/cookies.sqlite";
};

// Scanning.

TEST_F(PrivacyOfMac, isEmptyBeforeTheFirstScan) {
    EXPECT_THAT(privacy().traces(), IsEmpty());
    EXPECT_THAT(privacy().selected(), IsEmpty());
    EXPECT_FALSE(privacy().loading());
    EXPECT_FALSE(privacy().hasScanned());
    EXPECT_FALSE(privacy().firefoxHistoryStays());
    EXPECT_EQ(privacy().selectedBytes(), 0U);
    EXPECT_EQ(machine.workspace.runningReads, 0);
}

TEST_F(PrivacyOfMac, scanFindsTracesLargestFirstAndChoosesCachesOnly) {
    const Emissions listed(privacy(), &PrivacyModel::tracesChanged);
    const Emissions chosen(privacy(), &PrivacyModel::selectionChanged);
    scan();
    EXPECT_THAT(identities(),
                ElementsAre("SafariCaches", "ChromeCaches", "SafariHistory", "ChromeCookies", "SystemRecent items"));
    EXPECT_THAT(privacy().selected(), ElementsAre("ChromeCaches", "SafariCaches"));
    EXPECT_EQ(privacy().selectedBytes(), 10'000'000U);
    EXPECT_EQ(listed.count(), 1);
    EXPECT_EQ(chosen.count(), 1);
}

TEST_F(PrivacyOfMac, loadsFromTheScanUntilItsResult) {
    const Emissions loads(privacy(), &PrivacyModel::loadingChanged);
    const Emissions scanned(privacy(), &PrivacyModel::hasScannedChanged);
    machine.tasks.hold();
    privacy().scanTraces();
    EXPECT_TRUE(privacy().hasScanned());
    EXPECT_TRUE(privacy().loading());
    EXPECT_THAT(privacy().traces(), IsEmpty());
    privacy().scanTraces();
    EXPECT_EQ(machine.tasks.waiting().size(), 1U) << "it measures already";
    machine.tasks.release();
    runUntil([this] { return !privacy().loading(); });
    EXPECT_EQ(loads.count(), 2);
    EXPECT_EQ(scanned.count(), 1);
}

TEST_F(PrivacyOfMac, loadingIsKnownWhenTheFirstScanIsTold) {
    bool loading = false;
    QObject::connect(&privacy(), &PrivacyModel::hasScannedChanged, &privacy(), [&] { loading = privacy().loading(); });
    scan();
    EXPECT_TRUE(loading);
}

TEST_F(PrivacyOfMac, secondScanDoesNothingAndLeavesTheSelection) {
    scan();
    privacy().setSelected("SafariCaches", false);
    privacy().setSelected("ChromeCookies", true);
    machine.files.addFile(library + "Caches/Firefox/data", {}, 9'000'000);
    machine.files.forgetCalls();
    scan();
    EXPECT_THAT(privacy().selected(), ElementsAre("ChromeCaches", "ChromeCookies"));
    EXPECT_THAT(identities(), Not(Contains("FirefoxCaches")));
    EXPECT_THAT(machine.files.calls(), IsEmpty());
}

TEST_F(Privacy, ofAMachineWithSafarisHistoryAloneStartsUnselected) {
    machine.files.addFile(library + "Safari/History.db", {}, 2'000'000);
    scan();
    EXPECT_THAT(identities(), ElementsAre("SafariHistory"));
    EXPECT_THAT(privacy().selected(), IsEmpty());
    EXPECT_EQ(privacy().selectedBytes(), 0U);
}

TEST_F(Privacy, ofAMachineWithoutBrowsersIsEmpty) {
    scan();
    EXPECT_TRUE(privacy().hasScanned());
    EXPECT_THAT(privacy().traces(), IsEmpty());
    machine.files.addFile(library + "Caches/Firefox/data", {}, 9'000'000);
    scan();
    EXPECT_THAT(identities(), ElementsAre("FirefoxCaches")) << "it measures again as long as there is nothing";
}

TEST_F(PrivacyOfMac, measuringEndsWithTheModel) {
    machine.tasks.hold();
    privacy().scanTraces();
    destroyModel();
    machine.tasks.release();
    runWhatIsThere();
}

// The selection.

TEST_F(PrivacyOfMac, selectionFollowsTheUser) {
    scan();
    const Emissions chosen(privacy(), &PrivacyModel::selectionChanged);
    privacy().setSelected("SafariHistory", true);
    EXPECT_EQ(privacy().selectedBytes(), 13'000'000U);
    privacy().setSelected("SafariHistory", true);
    EXPECT_EQ(chosen.count(), 1);
    privacy().setSelected("SafariHistory", false);
    privacy().setSelected("SafariCaches", false);
    EXPECT_EQ(privacy().selectedBytes(), 4'000'000U);
    EXPECT_EQ(chosen.count(), 3);
}

TEST_F(PrivacyOfMac, selectedBytesCountListedTracesOnly) {
    scan();
    privacy().setSelected("nothing like it", true);
    EXPECT_EQ(privacy().selectedBytes(), 10'000'000U);
}

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
    for (const std::string& one : identities()) privacy().setSelected(one, true);
    clear();
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
    for (const std::string& one : identities()) privacy().setSelected(one, true);
    clear();
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
    for (const std::string& one : identities()) privacy().setSelected(one, true);
    clear();
    machine.tasks.hold();
    privacy().scanTraces();
    model().undoLastRemoval();
    machine.tasks.runAt(1);
    runUntil([this] { return !privacy().traces().empty(); });
    EXPECT_TRUE(privacy().loading());
    for (const char* gone : {"Caches/com.apple.Safari", "Caches/Google/Chrome"}) machine.files.erase(library + gone);
    machine.tasks.release();
    runUntil([this] { return !privacy().loading(); });
    // It knows of two more than the scan saw, and counts the others once.
    EXPECT_EQ(trace("SafariCaches").size, 6'000'000U);
    EXPECT_EQ(trace("SafariHistory").size, 3'000'000U);
    EXPECT_THAT(privacy().selected(), ElementsAre("ChromeCaches", "SafariCaches"));
}

// Linux.

TEST_F(PrivacyOfLinux, choosesCachesAndNeitherCookiesNorThumbnails) {
    scan();
    EXPECT_THAT(identities(), ElementsAre("ChromiumCaches", "FirefoxCookies", "FirefoxCaches", "GNOME WebHistory",
                                          "SystemThumbnails"));
    EXPECT_THAT(privacy().selected(), ElementsAre("ChromiumCaches", "FirefoxCaches"));
    EXPECT_TRUE(privacy().firefoxHistoryStays());
}

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

// Running browsers.

TEST_F(PrivacyOfMac, runningBrowserIsTheFirstNameThatContainsTheApplication) {
    machine.workspace.running = {"", "Finder", "Archive Utility", "Arc", "Google Chrome", "SYSTEM SETTINGS"};
    privacy().refreshRunning();
    EXPECT_EQ(privacy().runningBrowser("Chrome"), "Google Chrome");
    EXPECT_EQ(privacy().runningBrowser("Arc"), "Archive Utility");
    EXPECT_EQ(privacy().runningBrowser("System"), "SYSTEM SETTINGS");
    EXPECT_EQ(privacy().runningBrowser("Safari"), std::nullopt);
}

TEST_F(PrivacyOfMac, runningBrowsersAreKnownWhenTheScanEnds) {
    machine.workspace.running = {"Safari"};
    scan();
    EXPECT_EQ(privacy().runningBrowser("Safari"), "Safari");
    machine.workspace.running.clear();
    EXPECT_EQ(privacy().runningBrowser("Safari"), "Safari") << "as of the last look";
    const Emissions told(privacy(), &PrivacyModel::runningChanged);
    privacy().refreshRunning();
    EXPECT_EQ(privacy().runningBrowser("Safari"), std::nullopt);
    EXPECT_EQ(told.count(), 1);
    privacy().refreshRunning();
    EXPECT_EQ(told.count(), 1);
}

TEST_F(PrivacyOfMac, seededSelectionOfARunningBrowserIsCountedAndCleared) {
    machine.workspace.running = {"Safari", "Google Chrome"};
    scan();
    EXPECT_THAT(privacy().selected(), ElementsAre("ChromeCaches", "SafariCaches"));
    EXPECT_EQ(privacy().selectedBytes(), 10'000'000U);
    clear();
    EXPECT_EQ(machine.trash.trashed().size(), 3U);
}

TEST_F(PrivacyOfLinux, gnomeWebIsToldByItsEntryAndNotByItsName) {
    scan();
    machine.workspace.running = {"Web"};
    refresh();
    EXPECT_EQ(privacy().runningBrowser("GNOME Web"), std::nullopt);
    const Emissions told(privacy(), &PrivacyModel::runningChanged);
    machine.workspace.runningIds = {"org.gnome.Maps", "org.gnome.Epiphany"};
    refresh();
    EXPECT_EQ(privacy().runningBrowser("GNOME Web"), "GNOME Web");
    EXPECT_EQ(privacy().runningBrowser("Firefox"), std::nullopt);
    EXPECT_EQ(told.count(), 1);
}

TEST_F(PrivacyOfLinux, chromiumsNameIsNotThatOfGnomeWebOrChrome) {
    machine.workspace.running = {"Chromium Web Browser"};
    scan();
    EXPECT_EQ(privacy().runningBrowser("Chromium"), "Chromium Web Browser");
    for (const char* other : {"Chrome", "GNOME Web"}) EXPECT_EQ(privacy().runningBrowser(other), std::nullopt) << other;
}

TEST_F(PrivacyOfLinux, browserThatHoldsItsLockIsKnownToRunWhenItsTracesAre) {
    machine.files.setLocked(fakes::firefoxOfLinux + "/b.used/.parentlock");
    std::optional<std::string> running;
    QObject watching;
    QObject::connect(&privacy(), &PrivacyModel::tracesChanged, &watching,
                     [&] { running = privacy().runningBrowser("Firefox"); });
    scan();
    EXPECT_EQ(running, "Firefox");
}

TEST_F(PrivacyOfLinux, browserThatHoldsItsLockRunsWhateverItIsCalled) {
    machine.files.setLocked(fakes::firefoxOfLinux + "/b.used/.parentlock");
    scan();
    runWhatIsThere();
    EXPECT_EQ(privacy().runningBrowser("Firefox"), "Firefox");
    machine.workspace.running = {"Firefox ESR"};
    refresh();
    EXPECT_EQ(privacy().runningBrowser("Firefox"), "Firefox ESR") << "its own name, if it is known";
    machine.workspace.running.clear();
    machine.files.setLocked(fakes::firefoxOfLinux + "/b.used/.parentlock", false);
    const Emissions told(privacy(), &PrivacyModel::runningChanged);
    refresh();
    EXPECT_EQ(privacy().runningBrowser("Firefox"), std::nullopt);
    EXPECT_EQ(told.count(), 2) << "the name, then the lock";
}

TEST_F(PrivacyOfLinux, lastLookAtTheLocksCounts) {
    scan();
    const std::string lock = fakes::firefoxOfLinux + "/b.used/.parentlock";
    machine.tasks.hold();
    machine.files.setLocked(lock);
    privacy().refreshRunning();
    privacy().refreshRunning();
    machine.tasks.runAt(1);  // the second one finds it held
    machine.files.setLocked(lock, false);
    machine.tasks.release();  // the first one no longer
    runWhatIsThere();
    EXPECT_EQ(privacy().runningBrowser("Firefox"), "Firefox");
}

}  // namespace
}  // namespace zelk
