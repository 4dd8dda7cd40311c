// SPDX-License-Identifier: MIT
// The model at start-up, and the settings.
#include "AppModelFixture.h"

namespace zelk {
namespace {

using AppModelTest = AppModelFixture;
using Strings = std::vector<std::string>;

TEST_F(AppModelTest, startsWithDefaults) {
    const AppModel& fresh = model();
    EXPECT_EQ(fresh.appearance(), AppModel::Appearance::dark);
    EXPECT_EQ(fresh.audience(), AppModel::Audience::normal);
    EXPECT_EQ(fresh.selection(), Screen::survey);
    EXPECT_EQ(fresh.scanPhase(), Phase::idle);
    EXPECT_EQ(fresh.itemsScanned(), 0);
    EXPECT_EQ(fresh.bytesScanned(), 0);
    EXPECT_EQ(fresh.currentPath(), "");
    EXPECT_EQ(fresh.blockedPaths(), 0);
    EXPECT_FALSE(fresh.root());
    EXPECT_FALSE(fresh.stats());
    EXPECT_TRUE(fresh.reclaimables().empty());
    EXPECT_EQ(fresh.insights(), ScanInsights());
    EXPECT_FALSE(fresh.volume());
    EXPECT_EQ(fresh.trashBytes(), 0);
    EXPECT_TRUE(fresh.trashAccessible());
    EXPECT_FALSE(fresh.trashLoading());
    EXPECT_FALSE(fresh.emptyingTrash());
    EXPECT_TRUE(fresh.history().empty());
    EXPECT_EQ(fresh.scanRoots(), Strings{home});
    EXPECT_EQ(fresh.ageFilterDays(), 14);
    EXPECT_FALSE(fresh.hardDeleteEnabled());
    EXPECT_EQ(fresh.home(), home);
    EXPECT_EQ(fresh.device(), machine.vitals.deviceInfo);
}

TEST_F(AppModelTest, startsNoScanAndMeasuresNothing) {
    machine.tasks.hold();
    model();
    runWhatIsThere();
    EXPECT_EQ(machine.directories.timesRead(home), 0);
    EXPECT_TRUE(machine.tasks.waiting().empty());
    EXPECT_TRUE(machine.vitals.volumeReads().empty());
}

TEST_F(AppModelTest, loadsHistoryAtStart) {
    SurveyRecord record;
    record.date = 1'700'000'000;
    record.totalScanned = 77;
    machine.files.addFile("/home/me/support/Zelk/history.json", encodeHistory({record}));
    EXPECT_EQ(model().history(), std::vector{record});
}

TEST_F(AppModelTest, corruptHistoryIsEmpty) {
    machine.files.addFile("/home/me/support/Zelk/history.json", "[{\"date\":");
    EXPECT_TRUE(model().history().empty());
}

TEST_F(AppModelTest, settersStoreAndSignalOnce) {
    model().setAppearance(AppModel::Appearance::light);
    model().setAudience(AppModel::Audience::developer);
    model().setSelection(Screen::lens);
    model().setScanRoots({"/a", "/b"});
    model().setAgeFilterDays(30);
    model().setHardDeleteEnabled(true);
    EXPECT_EQ(model().appearance(), AppModel::Appearance::light);
    EXPECT_EQ(model().audience(), AppModel::Audience::developer);
    EXPECT_EQ(model().selection(), Screen::lens);
    EXPECT_EQ(model().scanRoots(), (Strings{"/a", "/b"}));
    EXPECT_EQ(model().ageFilterDays(), 30);
    EXPECT_TRUE(model().hardDeleteEnabled());
    EXPECT_EQ(takeSignals(),
              (Strings{"appearance", "audience", "selection", "scanRoots", "ageFilterDays", "hardDeleteEnabled"}));
}

TEST_F(AppModelTest, settingSameValueSignalsNothing) {
    model().setAppearance(AppModel::Appearance::dark);
    model().setAudience(AppModel::Audience::normal);
    model().setSelection(Screen::survey);
    model().setScanRoots({home});
    model().setAgeFilterDays(14);
    model().setHardDeleteEnabled(false);
    model().setVolume(std::nullopt);
    EXPECT_EQ(takeSignals(), Strings{});
}

TEST_F(AppModelTest, dropsDuplicateScanRoots) {
    model().setScanRoots({"/b", "/a", "/b", "/c", "/a"});
    EXPECT_EQ(model().scanRoots(), (Strings{"/b", "/a", "/c"}));
}

TEST_F(AppModelTest, normalizesScanRoots) {
    model().setScanRoots({"/a/home/", "/a/home", "/a/./home", "//a/home/.", "/caf\xe9/"});
    EXPECT_EQ(model().scanRoots(), (Strings{"/a/home", "/caf\xe9"}));
}

TEST_F(AppModelTest, surveysDuplicateRootOnce) {
    machine.directories.file("/a/home/file", 1'000'000);
    model().setScanRoots({"/a/home/", "/a/home"});
    survey();
    EXPECT_EQ(model().stats()->filesScanned, 1);
    EXPECT_EQ(model().stats()->roots, Strings{"/a/home"});
}

TEST_F(AppModelTest, scanKeepsSelection) {
    model().setSelection(Screen::clutter);
    survey();
    EXPECT_EQ(model().selection(), Screen::clutter);
}

TEST_F(AppModelTest, rawValuesAreStable) {
    EXPECT_EQ(rawValue(AppModel::Audience::normal), "Normal");
    EXPECT_EQ(rawValue(AppModel::Audience::developer), "Developer");
    EXPECT_EQ(rawValue(AppModel::Appearance::system), "system");
    EXPECT_EQ(rawValue(AppModel::Appearance::light), "light");
    EXPECT_EQ(rawValue(AppModel::Appearance::dark), "dark");
}

}  // namespace
}  // namespace zelk
