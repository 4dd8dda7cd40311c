// SPDX-License-Identifier: MIT
// Finding and choosing what browsers left behind, and which of them run.
#include <gmock/gmock.h>

#include "PrivacyFixture.h"

namespace zelk {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

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

// Linux.

TEST_F(PrivacyOfLinux, choosesCachesAndNeitherCookiesNorThumbnails) {
    scan();
    EXPECT_THAT(identities(), ElementsAre("ChromiumCaches", "FirefoxCookies", "FirefoxCaches", "GNOME WebHistory",
                                          "SystemThumbnails"));
    EXPECT_THAT(privacy().selected(), ElementsAre("ChromiumCaches", "FirefoxCaches"));
    EXPECT_TRUE(privacy().firefoxHistoryStays());
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

TEST_F(PrivacyOfMac, everyBrowserMayRunIfWhatRunsIsForgottenWhileItIsRead) {
    for (const bool known : {true, false}) {
        machine.workspace.runningKnown = known;
        machine.workspace.beforeRunningRead = [this, known] { machine.workspace.runningKnown = !known; };
        privacy().refreshRunning();
        EXPECT_FALSE(privacy().runningKnown()) << known;
        EXPECT_EQ(privacy().runningBrowser("Safari"), "Safari") << known;
    }
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
