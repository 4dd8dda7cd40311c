// SPDX-License-Identifier: MIT
#include "ui/screens/clutter/ClutterScreenModel.h"

#include <gmock/gmock.h>

#include <QSignalSpy>
#include <utility>

#include "fakes/ClutterHome.h"
#include "state/AppModelFixture.h"
#include "ui/theme/SystemTexts.h"

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Strings = std::vector<std::string>;

class ClutterScreenModelTest : public AppModelFixture {
protected:
    void surveyClutter() {
        fakes::fillWithClutter(machine, home);
        survey();
    }
    ClutterScreenModel& screen() {
        if (!screen_) screen_ = std::make_unique<ClutterScreenModel>(model());
        return *screen_;
    }

    template <class Rows>
    static Strings texts(const Rows& rows, const char* role = "name") {
        Strings all;
        for (int row = 0; row < rows.rowCount(); ++row)
            all.push_back(rows.data(rows.index(row), rows.roleNames().key(role)).toString().toStdString());
        return all;
    }
    Strings names() { return texts(*screen().rows()); }
    Strings pills() {
        Strings all;
        for (const FileTypeLook& pill : screen().pills()) all.push_back(pill.name.toStdString());
        return all;
    }
    /// The name of the chosen pill; empty if it is gone.
    std::string chosenPill() {
        const int chosen = screen().pill();
        return chosen < 0 ? std::string() : screen().pills().at(chosen).name.toStdString();
    }
    void filter(const std::string& pill) {
        const Strings all = pills();
        screen().filter(static_cast<int>(std::find(all.begin(), all.end(), pill) - all.begin()));
    }
    void trash(const std::string& name) {
        const Strings all = names();
        screen().pick(static_cast<int>(std::find(all.begin(), all.end(), name) - all.begin()));
        screen().moveToTrash();
        runWhatIsThere();
    }

private:
    std::unique_ptr<ClutterScreenModel> screen_;
};

constexpr int largest = 0;
constexpr int oldest = 1;

}  // namespace

TEST_F(ClutterScreenModelTest, exposesItsTexts) {
    const ClutterScreenModel& clutter = screen();
    const std::pair<QString, const char*> expected[] = {
        {clutter.title(), "Clutter"},
        {clutter.subtitle(),
         "Find your largest and oldest files — videos, downloads, disk images, forgotten archives."},
        {clutter.scanLabel(), "Find large files"},
        {clutter.scanningLabel(), "Hunting for heavy files…"},
    };
    for (const auto& [actual, text] : expected) EXPECT_EQ(actual.toStdString(), text);
    EXPECT_EQ(clutter.screen(), Screen::clutter);
}

TEST_F(ClutterScreenModelTest, showsProgressAndResultsOfItsSurvey) {
    fakes::fillWithClutter(machine, home);
    addWideFolder(home + "/wide");
    machine.directories.hold(home + "/wide/inner");
    EXPECT_TRUE(screen().idle());
    screen().scan();
    EXPECT_TRUE(screen().scanning());
    runUntil(
        [&] { return model().itemsScanned() > 0 && screen().scanDetail().toStdString() == model().progressLine(); });
    machine.directories.release();
    runUntil([&] { return screen().results(); });
    EXPECT_EQ(names().front(), "concert.mov");
}

TEST_F(ClutterScreenModelTest, showsResultsOfEarlierSurvey) {
    surveyClutter();
    EXPECT_TRUE(screen().results());
    EXPECT_FALSE(screen().nothing());
    EXPECT_EQ(names().size(), 5U);
}

TEST_F(ClutterScreenModelTest, isEmptyWithoutLargeFiles) {
    survey();
    EXPECT_TRUE(screen().nothing());
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_THAT(pills(), ElementsAre("All"));
}

TEST_F(ClutterScreenModelTest, sortsBySizeByDefault) {
    surveyClutter();
    EXPECT_FALSE(screen().sortByAge());
    EXPECT_THAT(names(), ElementsAre("concert.mov", "setup.iso", "backup.zip", "old.mp4", "notes.pdf"));
    EXPECT_THAT(texts(*screen().rows(), "size"), ElementsAre("4 GB", "2 GB", "900 MB", "800 MB", "700 MB"));
}

TEST_F(ClutterScreenModelTest, sortsByAge) {
    surveyClutter();
    const QSignalSpy rearranged(&screen(), &ClutterScreenModel::rearranged);
    screen().sort(oldest);
    EXPECT_TRUE(screen().sortByAge());
    EXPECT_EQ(screen().order(), oldest);
    EXPECT_THAT(names(), ElementsAre("old.mp4", "backup.zip", "notes.pdf", "concert.mov", "setup.iso"));
    EXPECT_THAT(texts(*screen().rows(), "age"), ElementsAre("3y ago", "2mo ago", "2d ago", "1d ago", "today"));
    EXPECT_EQ(rearranged.size(), 1);
    screen().sort(oldest);
    EXPECT_EQ(rearranged.size(), 1);
    screen().sort(largest);
    EXPECT_EQ(names().front(), "concert.mov");
}

TEST_F(ClutterScreenModelTest, sortsEqualAgesBySize) {
    for (const int size : {1, 3, 2})
        machine.directories.file(home + "/" + std::to_string(size), static_cast<std::uint64_t>(size) * 1'000'000,
                                 5'000);
    survey();
    screen().sort(oldest);
    EXPECT_THAT(names(), ElementsAre("3", "2", "1"));
}

TEST_F(ClutterScreenModelTest, pillsListTypesByTotalSize) {
    surveyClutter();
    EXPECT_THAT(pills(), ElementsAre("All", "Video", "Disk images", "Archives", "Documents"));
    EXPECT_EQ(chosenPill(), "All");
    Strings symbols;
    for (const FileTypeLook& pill : screen().pills()) symbols.push_back(pill.symbol.toStdString());
    EXPECT_THAT(symbols, ElementsAre("tray.full", "film", "opticaldiscdrive", "doc.zipper", "doc.text"));
}

TEST_F(ClutterScreenModelTest, pillFiltersByType) {
    surveyClutter();
    const QSignalSpy rearranged(&screen(), &ClutterScreenModel::rearranged);
    filter("Video");
    EXPECT_EQ(screen().typeFilter(), FileType::video);
    EXPECT_THAT(names(), ElementsAre("concert.mov", "old.mp4"));
    EXPECT_EQ(chosenPill(), "Video");
    screen().sort(oldest);
    EXPECT_THAT(names(), ElementsAre("old.mp4", "concert.mov"));
    filter("Documents");
    EXPECT_THAT(names(), ElementsAre("notes.pdf"));
    filter("All");
    EXPECT_EQ(screen().typeFilter(), std::nullopt);
    EXPECT_EQ(names().size(), 5U);
    EXPECT_EQ(rearranged.size(), 4);
    screen().filter(99);
    screen().filter(-1);
    EXPECT_EQ(rearranged.size(), 4);
}

TEST_F(ClutterScreenModelTest, showsAgesAtUnitBoundaries) {
    const TimePoint now = machine.clock.now();
    int size = 9;
    for (const double days : {30.0, 364.0, 365.0, -3.0})
        machine.directories.file(home + "/" + std::to_string(days), static_cast<std::uint64_t>(size--) * 1'000'000,
                                 now - days * secondsPerDay);
    survey();
    EXPECT_THAT(texts(*screen().rows(), "age"), ElementsAre("1mo ago", "12mo ago", "1y ago", "today"));
}

TEST_F(ClutterScreenModelTest, refreshesAgesWhenShown) {
    surveyClutter();
    screen().setOnScreen(true);
    screen().setOnScreen(false);
    machine.clock.advance(3 * secondsPerDay);
    screen().setOnScreen(true);
    EXPECT_EQ(texts(*screen().rows(), "age").front(), "4d ago");
}

TEST_F(ClutterScreenModelTest, revealsFile) {
    surveyClutter();
    screen().pick(2);
    screen().reveal();
    EXPECT_THAT(machine.workspace.revealed, ElementsAre(Strings{home + "/backup.zip"}));
}

TEST_F(ClutterScreenModelTest, ignoresInvalidRows) {
    surveyClutter();
    machine.tasks.hold();
    for (const int row : {-1, 5}) {
        screen().pick(row);
        screen().reveal();
        screen().moveToTrash();
    }
    EXPECT_THAT(machine.workspace.revealed, IsEmpty());
    EXPECT_TRUE(machine.tasks.waiting().empty());
    machine.tasks.release();
}

TEST_F(ClutterScreenModelTest, movesFileToTrashWithoutConfirmation) {
    surveyClutter();
    trash("setup.iso");
    EXPECT_EQ(machine.trash.trashed(), Strings{home + "/media/setup.iso"});
    EXPECT_THAT(names(), ElementsAre("concert.mov", "backup.zip", "old.mp4", "notes.pdf"));
}

TEST_F(ClutterScreenModelTest, failedRemovalKeepsRow) {
    surveyClutter();
    machine.files.failing = [](const auto& call) { return call.operation == "trash"; };
    const QSignalSpy removed(screen().rows(), &QAbstractItemModel::rowsRemoved);
    trash("setup.iso");
    EXPECT_EQ(names().size(), 5U);
    EXPECT_EQ(removed.size(), 0);
}

TEST_F(ClutterScreenModelTest, totalsStillCountTrashedFiles) {
    surveyClutter();
    const auto before = model().sortedTypeTotals();
    trash("concert.mov");
    trash("backup.zip");
    EXPECT_EQ(model().sortedTypeTotals(), before);
    EXPECT_THAT(pills(), ElementsAre("All", "Video", "Disk images", "Archives", "Documents"));
}

TEST_F(ClutterScreenModelTest, emptyFilterShowsNoPlaceholder) {
    surveyClutter();
    filter("Archives");
    trash("backup.zip");
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_FALSE(screen().nothing());
    filter("All");
    EXPECT_EQ(names().size(), 4U);
}

TEST_F(ClutterScreenModelTest, removingTheLastFileShowsPlaceholder) {
    machine.directories.file(home + "/only.mov", 1'000'000, 0);
    machine.files.addFile(home + "/only.mov");
    survey();
    ASSERT_FALSE(screen().nothing());
    trash("only.mov");
    EXPECT_TRUE(screen().nothing());
}

TEST_F(ClutterScreenModelTest, filterOnVanishedTypeIsResetByAll) {
    surveyClutter();
    filter("Video");
    model().setScanRoots({home + "/papers"});
    survey();
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_FALSE(screen().nothing());
    EXPECT_THAT(pills(), ElementsAre("All", "Documents"));
    EXPECT_EQ(chosenPill(), "");
    filter("All");
    EXPECT_THAT(names(), ElementsAre("notes.pdf"));
}

TEST_F(ClutterScreenModelTest, keepsOrderAndFilterAcrossSurveys) {
    surveyClutter();
    screen().sort(oldest);
    filter("Video");
    survey();
    EXPECT_THAT(names(), ElementsAre("old.mp4", "concert.mov"));
    EXPECT_EQ(chosenPill(), "Video");
}

TEST_F(ClutterScreenModelTest, pickedFileSurvivesRowChanges) {
    surveyClutter();
    screen().pick(2);
    model().trashLargeFile(home + "/media/concert.mov");
    runWhatIsThere();
    screen().sort(oldest);
    screen().moveToTrash();
    runWhatIsThere();
    EXPECT_EQ(machine.trash.trashed(), (Strings{home + "/media/concert.mov", home + "/backup.zip"}));
}

TEST_F(ClutterScreenModelTest, keepsRowsDuringAnotherSurvey) {
    surveyClutter();
    ASSERT_EQ(names().size(), 5U);
    addWideFolder(home + "/wide");
    machine.directories.hold(home + "/wide/inner");
    model().startScan();
    EXPECT_EQ(names().size(), 5U);
    EXPECT_FALSE(screen().nothing());
    machine.directories.release();
    runUntil([&] { return screen().results(); });
}

TEST_F(ClutterScreenModelTest, unchangedSurveyEditsNoRows) {
    surveyClutter();
    screen();
    const QSignalSpy removed(screen().rows(), &QAbstractItemModel::rowsRemoved);
    const QSignalSpy inserted(screen().rows(), &QAbstractItemModel::rowsInserted);
    const QSignalSpy otherPills(&screen(), &ClutterScreenModel::pillsChanged);
    survey();
    EXPECT_EQ(removed.size() + inserted.size() + otherPills.size(), 0);
}

}  // namespace zelk
