// SPDX-License-Identifier: MIT
#include "state/AppsModel.h"

#include <gmock/gmock.h>

#include "fakes/AppsHome.h"
#include "state/AppModelFixture.h"

namespace zelk {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using AppNames = std::vector<std::string>;
using Sort = AppsModel::Sort;

AppNames namesOf(const std::vector<AppEntry>& apps) {
    AppNames names;
    for (const AppEntry& app : apps) names.push_back(app.name);
    return names;
}

class AppsModelFixture : public AppModelFixture {
protected:
    AppsModel& apps() { return model().apps(); }
    void scan() {
        apps().scanApps();
        runUntil([this] { return !apps().loading(); });
    }
    /// And waits for the footprints, which come after the list.
    void scanWhole() {
        int changes = 0;
        const auto counting = QObject::connect(&apps(), &AppsModel::appsChanged, &apps(), [&] { ++changes; });
        apps().scanApps();
        runUntil([&] { return changes == 2; });
        QObject::disconnect(counting);
    }
    AppEntry app(const std::string& name) {
        for (const AppEntry& one : apps().apps())
            if (one.name == name) return one;
        ADD_FAILURE() << name;
        return {};
    }
    void uninstall(const AppEntry& one) {
        apps().uninstall(one, apps().leftoversFor(one));
        runUntil([&] { return !apps().isRemoving(one.url); });
        runUntil([this] { return !model().removals().underWay(); });
    }
    void uninstall(const std::string& name) { uninstall(app(name)); }
};

/// The bundles Inkwell (300, with 1,000 elsewhere), Sonata (500) and Tidepool (100, without an identifier).
class Bundles : public AppsModelFixture {
protected:
    Bundles() {
        fakes::addBundle(machine, "Inkwell", 300, "org.sample.inkwell");
        fakes::addBundle(machine, "Sonata", 500, "org.sample.sonata");
        fakes::addBundle(machine, "Tidepool", 100);
        machine.files.addFile(support, {}, 900);
        machine.files.addFile(cache + "/file", {}, 100);
        machine.files.addFile(cache + "/.hidden", {}, 50);
    }

    const std::string support = home + "/Library/Application Support/org.sample.inkwell";
    const std::string cache = home + "/Library/Caches/Inkwell";
};

class LinuxDesktop : public AppsModelFixture {
protected:
    LinuxDesktop() {
        desktop.fill();
        machine.files.addFile(orreryData + "/sky", {}, 2'000'000);
        machine.files.addFile(studioConfig + "/settings", {}, 1'000);
        machine.files.addFile(tidepoolCache + "/file", {}, 500);
    }

    fakes::LinuxApps desktop{machine};
    const std::string orreryData = home + "/.var/app/org.sample.Orrery";
    const std::string studioConfig = home + "/.config/studio";
    const std::string tidepoolCache = home + "/.cache/tidepool";
};

}  // namespace

TEST(AppsSort, hasTheLabelsOfItsSegments) {
    EXPECT_EQ(rawValue(Sort::footprint), "Total footprint");
    EXPECT_EQ(rawValue(Sort::bundle), "App size");
}

TEST_F(Bundles, beginEmptyAndUnread) {
    EXPECT_EQ(apps().sort(), Sort::footprint);
    EXPECT_THAT(apps().apps(), IsEmpty());
    EXPECT_FALSE(apps().loading());
    EXPECT_FALSE(apps().hasScanned());
    EXPECT_FALSE(apps().removing());
    EXPECT_FALSE(apps().lastEnding());
}

TEST_F(Bundles, areReadLargestFirstWithoutFootprints) {
    machine.tasks.hold();
    apps().scanApps();
    EXPECT_TRUE(apps().hasScanned());
    EXPECT_TRUE(apps().loading());
    runUntil([this] { return !machine.tasks.waiting().empty(); });
    EXPECT_TRUE(apps().loading());
    machine.tasks.runNext();
    runUntil([this] { return !apps().loading(); });
    EXPECT_EQ(namesOf(apps().apps()), (AppNames{"Sonata", "Inkwell", "Tidepool"}));
    EXPECT_EQ(app("Inkwell").bundleID, "org.sample.inkwell");
    EXPECT_EQ(app("Inkwell").url, "/Applications/Inkwell.app");
    EXPECT_EQ(app("Tidepool").bundleID, std::nullopt);
    for (const AppEntry& one : apps().apps()) EXPECT_EQ(one.dataTotal, 0U);
    EXPECT_THAT(machine.tasks.waiting(), ElementsAre(TaskPriority::utility));
    machine.tasks.release();
}

TEST_F(Bundles, footprintsArriveAllAtOnce) {
    machine.files.addFile(home + "/Library/Logs/Tidepool", {}, 7);
    int changes = 0;
    QObject::connect(&apps(), &AppsModel::appsChanged, &apps(), [&] {
        std::uint64_t sum = 0;
        for (const AppEntry& one : apps().apps()) sum += one.dataTotal;
        EXPECT_EQ(sum, ++changes == 1 ? 0U : 1'007U);
    });
    apps().scanApps();
    runUntil([&] { return changes == 2; });
    EXPECT_EQ(app("Inkwell").dataTotal, 1'000U) << "without what is hidden";
    EXPECT_EQ(namesOf(apps().apps()), (AppNames{"Sonata", "Inkwell", "Tidepool"})) << "in the order of the scan";
}

TEST_F(Bundles, sortByFootprintOrBySize) {
    scanWhole();
    EXPECT_EQ(namesOf(apps().sortedApps()), (AppNames{"Inkwell", "Sonata", "Tidepool"}));
    int changes = 0;
    QObject::connect(&apps(), &AppsModel::sortChanged, &apps(), [&] { ++changes; });
    apps().setSort(Sort::bundle);
    apps().setSort(Sort::bundle);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(namesOf(apps().sortedApps()), (AppNames{"Sonata", "Inkwell", "Tidepool"}));
}

TEST_F(Bundles, ofOneSizeKeepTheirOrder) {
    fakes::addBundle(machine, "Alike", 500);
    scan();
    const AppNames names = namesOf(apps().apps());
    EXPECT_EQ(AppNames(names.begin(), names.begin() + 2), namesOf({app(names[0]), app(names[1])}));
    EXPECT_EQ(namesOf(apps().sortedApps()).front(), names.front());
}

TEST_F(Bundles, secondPressReadsNothing) {
    scanWhole();
    const std::size_t reads = machine.files.calls().size();
    apps().scanApps();
    EXPECT_FALSE(apps().loading());
    EXPECT_EQ(machine.files.calls().size(), reads);
}

TEST_F(Bundles, secondPressWhileReadingStartsNothing) {
    machine.directories.hold("/Applications");
    int begun = 0;
    QObject::connect(&apps(), &AppsModel::loadingChanged, &apps(), [&] { ++begun; });
    apps().scanApps();
    apps().scanApps();
    EXPECT_EQ(begun, 1);
    machine.directories.release();
    runUntil([this] { return !apps().loading(); });
    EXPECT_THAT(apps().apps(), SizeIs(3));
}

TEST_F(AppsModelFixture, isEmptyWithoutTheFolder) {
    scan();
    EXPECT_THAT(apps().apps(), IsEmpty());
    EXPECT_TRUE(apps().hasScanned());
    runWhatIsThere();
}

TEST_F(Bundles, hardLinksCountOnce) {
    machine.directories.hardLink("/Applications/Sonata.app/Contents/copy",
                                 "/Applications/Sonata.app/Contents/MacOS/Sonata");
    scan();
    EXPECT_EQ(app("Sonata").size, 500U);
}

TEST_F(Bundles, goWithTheirLeftoversInOrder) {
    scanWhole();
    const auto leftovers = apps().leftoversFor(app("Inkwell"));
    EXPECT_THAT(leftovers, ElementsAre(AppsModel::Leftover{support, 900}, AppsModel::Leftover{cache, 150}));
    uninstall("Inkwell");
    EXPECT_THAT(machine.trash.trashed(), ElementsAre("/Applications/Inkwell.app", support, cache));
    EXPECT_EQ(namesOf(apps().apps()), (AppNames{"Sonata", "Tidepool"}));
    EXPECT_FALSE(apps().lastEnding()) << "nothing to tell";
}

TEST_F(Bundles, failingMoveStillTakesTheRow) {
    scanWhole();
    machine.files.failing = [](const auto& call) {
        return call.operation == "trash" && call.path == "/Applications/Inkwell.app";
    };
    uninstall("Inkwell");
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(support, cache)) << "the next goes on";
    EXPECT_EQ(namesOf(apps().apps()), (AppNames{"Sonata", "Tidepool"}));
    EXPECT_FALSE(apps().lastEnding());
}

TEST_F(Bundles, failingLeftoverIsDroppedWithoutAWord) {
    scanWhole();
    machine.files.failing = [this](const auto& call) { return call.operation == "trash" && call.path == support; };
    uninstall("Inkwell");
    EXPECT_THAT(machine.trash.trashed(), ElementsAre("/Applications/Inkwell.app", cache));
    EXPECT_FALSE(apps().lastEnding());
}

TEST_F(Bundles, areNoFolderOfTheLeftoversWithoutIdentifier) {
    scan();
    EXPECT_THAT(apps().leftoverCandidates(app("Tidepool")), SizeIs(3));
    EXPECT_THAT(apps().leftoverCandidates(app("Inkwell")), SizeIs(11));
    EXPECT_EQ(apps().dataSize(app("Inkwell")), 1'000U);
}

TEST_F(Bundles, uninstalledBeforeTheFootprintsStayAway) {
    machine.tasks.hold();
    apps().scanApps();
    runUntil([this] { return !machine.tasks.waiting().empty(); });
    machine.tasks.runNext();
    runUntil([this] { return !apps().loading(); });
    apps().uninstall(app("Sonata"), {});
    machine.tasks.runAt(1);
    runUntil([this] { return !apps().removing(); });
    EXPECT_EQ(namesOf(apps().apps()), (AppNames{"Inkwell", "Tidepool"}));
    machine.tasks.release();
    runUntil([this] { return app("Inkwell").dataTotal > 0; });
    EXPECT_EQ(namesOf(apps().apps()), (AppNames{"Inkwell", "Tidepool"}));
}

TEST_F(Bundles, footprintsOfAnEarlierListComeTooLate) {
    // All tasks but the first ones, which wait.
    const auto runOthersUntil = [this](std::size_t held, auto done) {
        runUntil([&] {
            if (done()) return true;
            machine.tasks.runAt(held);
            return false;
        });
    };
    const auto scanHeld = [&](std::size_t held) {
        apps().scanApps();
        runOthersUntil(held, [this] { return !apps().loading(); });
    };
    machine.tasks.hold();
    scanHeld(0);
    ASSERT_THAT(machine.tasks.waiting(), SizeIs(1)) << "its footprints";
    for (const AppEntry& one : std::vector<AppEntry>(apps().apps())) {
        apps().uninstall(one, {});
        runOthersUntil(1, [this] { return !apps().removing(); });
    }
    ASSERT_THAT(apps().apps(), IsEmpty());
    fakes::addBundle(machine, "Orrery", 700);
    scanHeld(1);
    ASSERT_THAT(namesOf(apps().apps()), Contains("Orrery"));
    while (machine.tasks.runAt(1)) runWhatIsThere();
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_THAT(namesOf(apps().apps()), Contains("Orrery"));
}

TEST_F(Bundles, comeBackWithUndo) {
    scanWhole();
    uninstall("Sonata");
    uninstall("Inkwell");
    EXPECT_EQ(model().removalUndo().source(), RemovalUndo::Source::applications);
    EXPECT_EQ(model().removalUndo().restorable(), 3U);
    model().undoLastRemoval();
    runUntil([this] { return !model().removalUndo().underWay(); });
    EXPECT_THAT(machine.trash.restored(), ElementsAre(cache, support, "/Applications/Inkwell.app"));
    EXPECT_EQ(namesOf(apps().apps()), (AppNames{"Inkwell", "Tidepool"}));
    EXPECT_EQ(app("Inkwell").dataTotal, 1'000U);
    EXPECT_EQ(model().scanPhase(), AppModel::ScanPhase::idle) << "no survey has to follow";
}

TEST_F(Bundles, undoOutlivesASurvey) {
    scanWhole();
    uninstall("Sonata");
    survey();
    model().undoLastRemoval();
    runUntil([this] { return !model().removalUndo().underWay(); });
    EXPECT_EQ(namesOf(apps().apps()), (AppNames{"Sonata", "Inkwell", "Tidepool"}));
}

TEST_F(Bundles, removalIsRegistered) {
    scanWhole();
    machine.tasks.hold();
    apps().uninstall(app("Inkwell"), apps().leftoversFor(app("Inkwell")));
    EXPECT_TRUE(model().removals().underWay());
    EXPECT_EQ(model().removals().progress().items, 3U);
    EXPECT_TRUE(apps().isRemoving("/Applications/Inkwell.app"));
    EXPECT_FALSE(apps().isRemoving("/Applications/Sonata.app"));
    machine.tasks.release();
    runUntil([this] { return !model().removals().underWay(); });
    EXPECT_FALSE(apps().removing());
}

TEST_F(Bundles, stoppedBeforeItBeganRemovesNothing) {
    scanWhole();
    machine.tasks.hold();
    apps().uninstall(app("Inkwell"), apps().leftoversFor(app("Inkwell")));
    model().removals().stop();
    machine.tasks.release();
    runUntil([this] { return !apps().removing(); });
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
    EXPECT_THAT(apps().apps(), SizeIs(3));
    EXPECT_EQ(model().removalUndo().moved(), 0U);
}

TEST_F(Bundles, secondUninstallOfTheSameDoesNothing) {
    scanWhole();
    machine.tasks.hold();
    apps().uninstall(app("Sonata"), {});
    apps().uninstall(app("Sonata"), {});
    EXPECT_EQ(model().removals().progress().items, 1U);
    machine.tasks.release();
    runUntil([this] { return !apps().removing(); });
}

TEST_F(Bundles, modelMayGoWhileItReads) {
    machine.directories.hold("/Applications");
    apps().scanApps();
    destroyModel();
    machine.directories.release();
    machine.waitForThreads();
    runWhatIsThere();
}

TEST_F(LinuxDesktop, readsEveryKindWithFootprints) {
    scanWhole();
    EXPECT_EQ(namesOf(apps().apps()), (AppNames{"Studio", "Orrery", "Chat", "Sonata", "Tidepool", "Maps"}));
    EXPECT_EQ(app("Orrery").dataTotal, 2'000'000U);
    EXPECT_EQ(app("Studio").dataTotal, 1'000U);
    EXPECT_EQ(app("Tidepool").dataTotal, 500U);
    EXPECT_EQ(app("Sonata").dataTotal, 0U);
}

TEST_F(LinuxDesktop, flatpakGoesFirstAndThenItsFolder) {
    scanWhole();
    uninstall("Orrery");
    EXPECT_THAT(desktop.removals(), ElementsAre("/usr/bin/flatpak uninstall --user -y --noninteractive --app "
                                                "app/org.sample.Orrery/x86_64/stable"));
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(orreryData));
    EXPECT_EQ(namesOf(apps().apps()), (AppNames{"Studio", "Chat", "Sonata", "Tidepool", "Maps"}));
    ASSERT_TRUE(apps().lastEnding());
    EXPECT_EQ(apps().lastEnding()->removal.outcome, AppRemoval::Outcome::gone);
    EXPECT_EQ(apps().lastEnding()->moved, 1U);
    EXPECT_EQ(model().removalUndo().moved(), 0U) << "what flatpak removed cannot come back";
}

TEST_F(LinuxDesktop, noLeftoverGoesIfTheApplicationDidNot) {
    scanWhole();
    for (const bool fails : {true, false}) {
        if (fails) desktop.removal = {std::nullopt, 1, "error: busy\n"};
        desktop.removes = fails;
        for (const char* name : {"Studio", "Orrery"}) uninstall(name);
        desktop.removal = {};
    }
    desktop.removes = true;
    machine.files.failing = [](const auto& call) {
        return call.operation == "trash" && call.path.ends_with("/Tidepool");
    };
    uninstall("Tidepool");
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
    EXPECT_THAT(apps().apps(), SizeIs(6));
    ASSERT_TRUE(apps().lastEnding());
    EXPECT_EQ(apps().lastEnding()->app.name, "Tidepool");
    EXPECT_EQ(apps().lastEnding()->removal.outcome, AppRemoval::Outcome::failed);
    EXPECT_EQ(apps().lastEnding()->stayed, 2U) << "its entry and its cache";
}

TEST_F(LinuxDesktop, toolThatHalfWorkedTakesTheRowAndLeavesTheLeftovers) {
    scanWhole();
    const AppEntry orrery = app("Orrery");
    const auto leftovers = apps().leftoversFor(orrery);
    machine.processes.outcome = [&](const auto&) {
        machine.files.erase(desktop.flatpakFolder(true) + "/app/org.sample.Orrery");
        return ChildOutcome{std::nullopt, 1, "error: half\n"};
    };
    apps().uninstall(orrery, leftovers);
    runUntil([this] { return !apps().removing(); });
    EXPECT_THAT(namesOf(apps().apps()), testing::Not(Contains("Orrery")));
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
    EXPECT_EQ(apps().lastEnding()->stayed, 1U);
}

TEST_F(LinuxDesktop, failedToolTakesNoRowBecauseOfAnUpdate) {
    scanWhole();
    for (const char* name : {"Orrery", "Chat"}) {
        const AppEntry one = app(name);
        machine.processes.outcome = [&](const auto&) {
            machine.files.move(one.url, one.kind == AppKind::snap ? desktop.snapFile("chat", "43") : one.url + "-next");
            return ChildOutcome{std::nullopt, 1, "error: busy\n"};
        };
        apps().uninstall(one, {});
        runUntil([this] { return !apps().removing(); });
        EXPECT_THAT(namesOf(apps().apps()), Contains(name));
    }
}

TEST_F(LinuxDesktop, unpackedTakesItsEntryAlongAndComesBack) {
    scanWhole();
    uninstall("Tidepool");
    EXPECT_THAT(machine.trash.trashed(),
                ElementsAre(home + "/Tidepool", desktop.ownEntry("org.sample.Tidepool"), tidepoolCache));
    EXPECT_FALSE(apps().lastEnding()) << "the bar with Undo says it";
    model().undoLastRemoval();
    runUntil([this] { return !model().removalUndo().underWay(); });
    EXPECT_THAT(namesOf(apps().apps()), Contains("Tidepool"));
    EXPECT_TRUE(machine.files.exists(home + "/Tidepool/bin/tidepool"));
}

TEST_F(LinuxDesktop, leftoverThatTheToolTookAlongIsNotMissed) {
    machine.files.addFile(home + "/snap/chat/42/file", {}, 700);
    scanWhole();
    uninstall("Chat");
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
    EXPECT_EQ(apps().lastEnding()->moved, 0U);
    EXPECT_EQ(apps().lastEnding()->stayed, 0U);
}

TEST_F(LinuxDesktop, leftoverThatWouldNotGoIsCounted) {
    scanWhole();
    machine.files.failing = [](const auto& call) {
        return call.operation == "trash" && call.path.ends_with("/.cache/tidepool");
    };
    uninstall("Tidepool");
    ASSERT_TRUE(apps().lastEnding());
    EXPECT_EQ(apps().lastEnding()->stayed, 1U);
    EXPECT_EQ(apps().lastEnding()->moved, 1U);
}

TEST_F(LinuxDesktop, endingIsForgottenWithTheNextRemovalOrWhenTold) {
    scanWhole();
    uninstall("Maps");
    ASSERT_TRUE(apps().lastEnding());
    int changes = 0;
    QObject::connect(&apps(), &AppsModel::endingChanged, &apps(), [&] { ++changes; });
    apps().forgetEnding();
    apps().forgetEnding();
    EXPECT_EQ(changes, 1);
    uninstall("Chat");
    uninstall("Tidepool");
    EXPECT_FALSE(apps().lastEnding());
}

TEST_F(LinuxDesktop, preparationMeasuresAndAsks) {
    scanWhole();
    desktop.alongside = {"plugins"};
    std::optional<AppsModel::Preparation> got;
    apps().prepare(app("Studio"), [&](const AppsModel::Preparation& preparation) { got = preparation; });
    runUntil([&] { return got.has_value(); });
    EXPECT_THAT(got->leftovers, ElementsAre(AppsModel::Leftover{studioConfig, 1'000}));
    EXPECT_EQ(got->obstacle, (AppObstacle{AppObstacle::Reason::needed, {"plugins"}}));
    EXPECT_EQ(got->size, app("Studio").size);
}

TEST_F(LinuxDesktop, preparationLooksAgainAtWhatIsTheUsers) {
    scanWhole();
    machine.files.addFile(home + "/Tidepool/thesis", {}, 5'000'000);
    machine.files.addFolder(home + "/Tidepool/.git");
    std::optional<AppsModel::Preparation> got;
    apps().prepare(app("Tidepool"), [&](const AppsModel::Preparation& preparation) { got = preparation; });
    runUntil([&] { return got.has_value(); });
    EXPECT_EQ(got->obstacle.reason, AppObstacle::Reason::changed);
    EXPECT_EQ(got->size, 65'000'000U);
}

TEST_F(LinuxDesktop, modelMayGoDuringARemoval) {
    scanWhole();
    machine.tasks.hold();
    apps().uninstall(app("Orrery"), {});
    destroyModel();
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_FALSE(desktop.removals().empty());
}

}  // namespace zelk
