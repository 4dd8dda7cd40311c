// SPDX-License-Identifier: MIT
#include "ui/shell/StatusItem.h"

#include <gmock/gmock.h>

#include <QMenu>

#include "fakes/FakeTray.h"
#include "state/AppModelFixture.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

namespace {

using testing::ElementsAre;

class StatusItemTest : public AppModelFixture {
protected:
    StatusItemTest() {
        machine.vitals.setVolume(home, VolumeInfo{1'000'000'000'000, 212'400'000'000, 212'400'000'000});
        fillHome();
        addWideFolder(home + "/wide");
    }
    ~StatusItemTest() override { machine.directories.release(); }

    /// A divider is "-", and entries without an action are in brackets.
    std::vector<std::string> texts() {
        std::vector<std::string> texts;
        for (const StatusEntry& entry : menu.entries()) {
            const std::string text = entry.text.toStdString();
            texts.push_back(entry.isDivider() ? "-" : entry.run ? text : "[" + text + "]");
        }
        return texts;
    }
    void press(const std::string& start) {
        for (const StatusEntry& entry : menu.entries())
            if (entry.text.toStdString().starts_with(start)) return entry.run();
        FAIL() << "no entry " << start;
    }

    int opens = 0;
    int quits = 0;
    StatusMenu menu{model(), [this] { ++opens; }, [this] { ++quits; }};
};

}  // namespace

TEST_F(StatusItemTest, offersSurveyAtFirst) {
    EXPECT_THAT(texts(), ElementsAre("[Free space: " + byteFigure(model().freeBytes()).toStdString() + "]", "-",
                                     "Open Zelk", "Run survey", "-", "Quit Zelk"));
}

TEST_F(StatusItemTest, showsFreeSpaceOfVolume) {
    survey();
    EXPECT_EQ(texts().front(), "[Free space: 212.4 GB]");
}

TEST_F(StatusItemTest, showsProgressInsteadOfOfferDuringSurvey) {
    machine.directories.hold(home + "/wide/inner");
    model().startScan();
    EXPECT_EQ(texts()[3], "[Surveying… 0 bytes]");
    runUntil([&] { return model().bytesScanned() > 0; });
    EXPECT_EQ(texts()[3], "[Surveying… " + byteFigure(model().bytesScanned()).toStdString() + "]");
}

TEST_F(StatusItemTest, offersCleaningOnlyAfterFinishedSurvey) {
    machine.directories.hold(home + "/wide/inner");
    model().startScan();
    EXPECT_EQ(texts().size(), 6U);
    machine.directories.release();
    survey();
    EXPECT_THAT(texts(), ElementsAre("[Free space: 212.4 GB]", "-", "Open Zelk", "Run survey",
                                     "Clean safe caches (50 MB)", "-", "Quit Zelk"));
    model().cancelScan();
    EXPECT_EQ(texts().size(), 6U);
}

TEST_F(StatusItemTest, offersNoCleaningIfNothingIsSafe) {
    machine.directories.directory("/home/me/empty");
    model().setScanRoots({"/home/me/empty"});
    survey();
    EXPECT_EQ(texts().size(), 6U);
}

TEST_F(StatusItemTest, cleansSafeCaches) {
    machine.files.addFile(home + "/Library/Caches/Yarn/v6");
    machine.files.addFile(home + "/projects/app/node_modules/a.js");
    survey();
    const int phases = timesSignalled("scanPhase");
    press("Clean safe caches (");
    runUntil([&] { return timesSignalled("scanPhase") > phases; });  // the survey after each clean-up
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(home + "/Library/Caches/Yarn"))
        << "node_modules is not graded safe";
    EXPECT_FALSE(machine.files.exists(home + "/Library/Caches/Yarn/v6"));
    EXPECT_TRUE(machine.files.exists(home + "/projects/app/node_modules/a.js"));
}

TEST_F(StatusItemTest, runSurveyOpensOverviewAndStartsSurvey) {
    machine.directories.hold(home);
    model().setSelection(Screen::lens);
    press("Run survey");
    EXPECT_EQ(model().selection(), Screen::survey);
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
    EXPECT_EQ(opens, 1);
}

TEST_F(StatusItemTest, opensAndQuits) {
    press("Open Zelk");
    EXPECT_EQ(opens, 1);
    press("Quit Zelk");
    EXPECT_EQ(quits, 1);
}

TEST_F(StatusItemTest, coalescesChangeNotifications) {
    int changes = 0;
    QObject::connect(&menu, &StatusMenu::changed, &menu, [&] { ++changes; });
    for (int report = 0; report < 100; ++report) emit model().progressChanged();
    EXPECT_EQ(changes, 0) << "changes are not signalled synchronously";
    runUntil([&] { return changes > 0; });
    runWhatIsThere();
    EXPECT_EQ(changes, 1) << "all reports are signalled at once";
}

TEST_F(StatusItemTest, statusItemReusesActionsWhenTextsChange) {
    StatusItem item(menu, std::make_unique<fakes::FakeTray>());
    EXPECT_FALSE(item.present());
    const QList<QAction*> before = item.menu().actions();
    ASSERT_EQ(before.size(), 6);
    EXPECT_FALSE(before[0]->isEnabled());
    EXPECT_TRUE(before[1]->isSeparator());
    emit menu.changed();
    EXPECT_EQ(item.menu().actions(), before);
    before[2]->trigger();
    EXPECT_EQ(opens, 1);
    survey();
    runUntil([&] { return item.menu().actions().size() == 7; });
    EXPECT_EQ(item.menu().actions()[4]->text(), QStringLiteral("Clean safe caches (50 MB)"));
}

TEST_F(StatusItemTest, statusItemIsAbsentWithoutTray) {
    StatusItem item(menu, std::make_unique<fakes::FakeTray>());
    item.start();
    EXPECT_FALSE(item.present());
}

}  // namespace zelk
