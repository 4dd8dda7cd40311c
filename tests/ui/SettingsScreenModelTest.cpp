// SPDX-License-Identifier: MIT
#include "ui/screens/settings/SettingsScreenModel.h"

#include <QSignalSpy>
#include <optional>
#include <string>
#include <vector>

#include "state/AppModelFixture.h"

namespace zelk {

namespace {

using Roots = std::vector<std::string>;
using Appearance = AppModel::Appearance;

class SettingsScreen : public AppModelFixture {
protected:
    SettingsScreenModel& settings() {
        if (!settings_) {
            settings_ = std::make_unique<SettingsScreenModel>(model(), [this] {
                ++questions;
                if (duringQuestion) duringQuestion();
                return chosen;
            });
        }
        return *settings_;
    }
    std::string path(int row) {
        const ScanRootList& roots = *settings().roots();
        return roots.data(roots.index(row), ScanRootList::pathRole).toString().toStdString();
    }
    void choose(const std::string& folder) {
        chosen = folder;
        settings().addFolder();
    }
    void finishScan() {
        runUntil([&] { return model().scanPhase() == Phase::finished; });
    }
    /// Starts a survey that stops inside the home folder.
    void scanAndHold() {
        addWideFolder(home + "/wide");
        machine.directories.hold(home + "/wide/inner");
        model().startScan();
        runUntil([&] { return model().itemsScanned() > 0; });
    }

    std::optional<std::string> chosen;
    std::function<void()> duringQuestion;
    int questions = 0;

private:
    std::unique_ptr<SettingsScreenModel> settings_;
};

}  // namespace

TEST_F(SettingsScreen, startsWithDefaults) {
    EXPECT_EQ(settings().roots()->rowCount(), 1);
    EXPECT_EQ(path(0), "/home/me");
    EXPECT_EQ(settings().ageFilterDays(), 14);
    EXPECT_EQ(settings().ageFilterText().toStdString(), "Age filter default: 14 days");
    EXPECT_FALSE(settings().hardDelete());
    EXPECT_EQ(settings().theme(), 2);
}

TEST_F(SettingsScreen, addedFolderIsAppendedAndSurveyed) {
    machine.directories.directory("/data");
    choose("/data");
    EXPECT_EQ(model().scanRoots(), (Roots{home, "/data"}));
    EXPECT_EQ(path(1), "/data");
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
    finishScan();
}

TEST_F(SettingsScreen, addsEachFolderOnce) {
    machine.directories.directory("/data");
    choose("/data");
    finishScan();
    const int phases = timesSignalled("scanPhase");
    choose("/data");
    EXPECT_EQ(model().scanRoots(), (Roots{home, "/data"}));
    EXPECT_EQ(settings().roots()->rowCount(), 2);
    EXPECT_EQ(timesSignalled("scanPhase"), phases) << "no change, no survey";
}

TEST_F(SettingsScreen, ignoresOtherSpellingsOfAFolder) {
    machine.directories.directory("/data");
    choose("/data/");
    EXPECT_EQ(path(1), "/data");
    finishScan();
    const int phases = timesSignalled("scanPhase");
    for (const char* spelling : {"/data", "/data/", "/data/."}) choose(spelling);
    EXPECT_EQ(model().scanRoots(), (Roots{home, "/data"}));
    EXPECT_EQ(timesSignalled("scanPhase"), phases) << "no change, no survey";
}

TEST_F(SettingsScreen, cancelledDialogChangesNothing) {
    for (const std::optional<std::string>& none : {std::optional<std::string>(), std::optional<std::string>("")}) {
        chosen = none;
        settings().addFolder();
        EXPECT_EQ(model().scanRoots(), Roots{home});
        EXPECT_EQ(model().scanPhase(), Phase::idle);
    }
    EXPECT_EQ(questions, 2);
}

TEST_F(SettingsScreen, keepsChangesMadeWhileDialogIsOpen) {
    duringQuestion = [this] { model().setScanRoots({home, "/other"}); };
    choose("/data");
    EXPECT_EQ(model().scanRoots(), (Roots{home, "/other", "/data"}));
    finishScan();
}

TEST_F(SettingsScreen, removingAFolderSurveysTheRest) {
    model().setScanRoots({home, "/data", "/more"});
    settings().removeFolder(1);
    EXPECT_EQ(model().scanRoots(), (Roots{home, "/more"}));
    EXPECT_EQ(path(1), "/more");
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
    finishScan();
}

TEST_F(SettingsScreen, removingTheOnlyFolderSurveysNothing) {
    settings().removeFolder(0);
    EXPECT_TRUE(model().scanRoots().empty());
    EXPECT_EQ(settings().roots()->rowCount(), 0);
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
    finishScan();
    ASSERT_TRUE(model().stats().has_value());
    EXPECT_EQ(model().stats()->filesScanned, 0);
}

TEST_F(SettingsScreen, ignoresRemovalOfUnknownRow) {
    settings().removeFolder(-1);
    settings().removeFolder(1);
    EXPECT_EQ(model().scanRoots(), Roots{home});
    EXPECT_EQ(model().scanPhase(), Phase::idle);
}

TEST_F(SettingsScreen, changeDuringSurveyOnlyUpdatesTheList) {
    model().setScanRoots({home, "/data"});
    scanAndHold();
    const int phases = timesSignalled("scanPhase");
    settings().removeFolder(1);
    settings().rescan();
    choose("/more");
    EXPECT_EQ(model().scanRoots(), (Roots{home, "/more"}));
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
    EXPECT_EQ(timesSignalled("scanPhase"), phases);
    machine.directories.release();
    finishScan();
    EXPECT_EQ(timesSignalled("scanPhase"), phases + 1);
}

TEST_F(SettingsScreen, rescans) {
    settings().rescan();
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
    finishScan();
}

TEST_F(SettingsScreen, editsTheListRowByRow) {
    model().setScanRoots({"/a", "/b", "/c"});
    ScanRootList& roots = *settings().roots();
    QSignalSpy removed(&roots, &ScanRootList::rowsRemoved);
    QSignalSpy inserted(&roots, &ScanRootList::rowsInserted);
    QSignalSpy reset(&roots, &ScanRootList::modelReset);
    settings().removeFolder(1);
    ASSERT_EQ(removed.count(), 1);
    EXPECT_EQ(removed[0][1].toInt(), 1);
    EXPECT_EQ(removed[0][2].toInt(), 1);
    EXPECT_EQ(inserted.count(), 0);
    choose("/d");
    ASSERT_EQ(inserted.count(), 1);
    EXPECT_EQ(inserted[0][1].toInt(), 2);
    EXPECT_EQ(inserted[0][2].toInt(), 2);
    EXPECT_EQ(removed.count(), 1);
    EXPECT_EQ(reset.count(), 0);
    finishScan();
}

TEST_F(SettingsScreen, listFollowsAnyChange) {
    const std::vector<Roots> lists{{"/a", "/b", "/c"}, {"/c", "/b", "/a"}, {}, {"/x"}, {"/y", "/x"}, {"/y"}, {"/z"}};
    for (const Roots& list : lists) {
        settings();
        model().setScanRoots(list);
        ASSERT_EQ(settings().roots()->rowCount(), static_cast<int>(list.size()));
        for (std::size_t row = 0; row < list.size(); ++row) EXPECT_EQ(path(static_cast<int>(row)), list[row]);
    }
}

TEST_F(SettingsScreen, repairsInvalidUtf8ForDisplayOnly) {
    const std::string folder = "/data/caf\xe9";
    machine.directories.directory(folder);
    choose(folder);
    EXPECT_EQ(path(1), "/data/caf\xef\xbf\xbd");
    EXPECT_EQ(model().scanRoots()[1], folder);
    finishScan();
    settings().removeFolder(1);
    EXPECT_EQ(model().scanRoots(), Roots{home});
    finishScan();
}

TEST_F(SettingsScreen, distinguishesNamesThatLookTheSame) {
    model().setScanRoots({"/data/caf\xe9", "/data/caf\xe8"});
    EXPECT_EQ(settings().roots()->rowCount(), 2);
    settings().removeFolder(0);
    EXPECT_EQ(model().scanRoots(), Roots{"/data/caf\xe8"});
    finishScan();
}

TEST_F(SettingsScreen, namesRemoveButtonAfterFolder) {
    const ScanRootList& roots = *settings().roots();
    EXPECT_EQ(roots.data(roots.index(0), ScanRootList::removeNameRole).toString().toStdString(), "Remove /home/me");
}

TEST_F(SettingsScreen, clampsAgeFilterToOneYear) {
    EXPECT_EQ(settings().leastAge(), 0);
    EXPECT_EQ(settings().greatestAge(), 365);
    settings().setAgeFilterDays(-1);
    EXPECT_EQ(model().ageFilterDays(), 0);
    settings().setAgeFilterDays(366);
    EXPECT_EQ(model().ageFilterDays(), 365);
}

TEST_F(SettingsScreen, formatsAgeFilter) {
    settings().setAgeFilterDays(0);
    EXPECT_EQ(settings().ageFilterText().toStdString(), "Age filter default: all");
    settings().setAgeFilterDays(1);
    EXPECT_EQ(settings().ageFilterText().toStdString(), "Age filter default: 1 days");
    settings().setAgeFilterDays(365);
    EXPECT_EQ(settings().ageFilterText().toStdString(), "Age filter default: 365 days");
}

TEST_F(SettingsScreen, cleanupDefaultsApplyWithoutSurvey) {
    QSignalSpy age(&settings(), &SettingsScreenModel::ageFilterChanged);
    QSignalSpy hard(&settings(), &SettingsScreenModel::hardDeleteChanged);
    settings().setAgeFilterDays(30);
    settings().setHardDelete(true);
    EXPECT_EQ(model().ageFilterDays(), 30);
    EXPECT_TRUE(model().hardDeleteEnabled());
    EXPECT_EQ(age.count(), 1);
    EXPECT_EQ(hard.count(), 1);
    EXPECT_EQ(model().scanPhase(), Phase::idle);
}

TEST_F(SettingsScreen, setsAppearance) {
    QSignalSpy told(&settings(), &SettingsScreenModel::themeChanged);
    settings().setTheme(0);
    EXPECT_EQ(model().appearance(), Appearance::system);
    settings().setTheme(1);
    EXPECT_EQ(model().appearance(), Appearance::light);
    settings().setTheme(2);
    EXPECT_EQ(model().appearance(), Appearance::dark);
    EXPECT_EQ(told.count(), 3);
    settings().setTheme(3);
    settings().setTheme(-1);
    EXPECT_EQ(model().appearance(), Appearance::dark);
}

TEST_F(SettingsScreen, followsModel) {
    settings();
    model().setAppearance(Appearance::light);
    model().setAgeFilterDays(7);
    model().setHardDeleteEnabled(true);
    EXPECT_EQ(settings().theme(), 1);
    EXPECT_EQ(settings().ageFilterText().toStdString(), "Age filter default: 7 days");
    EXPECT_TRUE(settings().hardDelete());
}

TEST_F(SettingsScreen, newModelHasDefaultsAgain) {
    settings().setAgeFilterDays(0);
    settings().setHardDelete(true);
    settings().setTheme(1);
    model().setAudience(AppModel::Audience::developer);
    model().setScanRoots({"/data"});
    AppModel next(machine.platform());
    EXPECT_EQ(next.scanRoots(), Roots{home});
    EXPECT_EQ(next.ageFilterDays(), 14);
    EXPECT_FALSE(next.hardDeleteEnabled());
    EXPECT_EQ(next.appearance(), Appearance::dark);
    EXPECT_EQ(next.audience(), AppModel::Audience::normal);
}

}  // namespace zelk
