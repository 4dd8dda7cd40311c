// SPDX-License-Identifier: MIT
// The end of a survey: the order in which fields are set, and the record in the history.
#include <thread>

#include "AppModelFixture.h"
#include "reclaim/ReclaimClassifier.h"

namespace zelk {
namespace {

using AppModelFinishTest = AppModelFixture;
using Strings = std::vector<std::string>;

TEST_F(AppModelFinishTest, setsFieldsInOrderAndPhaseLast) {
    fillHome();
    machine.directories.unreadable(home + "/secret");
    machine.tasks.hold();
    model().startScan();
    EXPECT_EQ(takeSignals(), (Strings{"scanPhase", "progress", "volume"}));
    runUntil([&] { return static_cast<bool>(model().root()); });
    EXPECT_EQ(takeSignals(), (Strings{"progress", "insights", "root", "progress"}));
    machine.tasks.release();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    EXPECT_EQ(takeSignals(), (Strings{"reclaimables", "history", "trash", "scanPhase"}));
}

TEST_F(AppModelFinishTest, phaseTurnsFinishedWhenResultsAreComplete) {
    fillHome();
    bool checked = false;
    QObject::connect(&model(), &AppModel::scanPhaseChanged, &model(), [&] {
        if (model().scanPhase() != Phase::finished) return;
        checked = true;
        EXPECT_EQ(model().root()->size, 3'127'000'000);
        EXPECT_EQ(model().stats()->totalBytes, 3'127'000'000);
        EXPECT_EQ(model().reclaimables().size(), 2U);
        EXPECT_EQ(model().history().size(), 1U);
        EXPECT_EQ(model().trashBytes(), 7'000'000);
    });
    survey();
    EXPECT_TRUE(checked);
}

TEST_F(AppModelFinishTest, finalFiguresComeFromTreeAndStats) {
    fillHome();
    survey();
    EXPECT_EQ(model().bytesScanned(), 3'127'000'000);
    EXPECT_EQ(model().stats()->filesScanned, 5);
    EXPECT_EQ(model().stats()->dirsScanned, 8);
    EXPECT_EQ(model().itemsScanned(), 13);
    EXPECT_EQ(model().insights().topFiles.front().path, home + "/projects/film.mov");
    EXPECT_EQ(model().insights().diskImages.size(), 1U);
}

TEST_F(AppModelFinishTest, classifierRunsOffMainThreadAndMarksTree) {
    std::thread::id asked;
    machine.directories.directory(home + "/rust/target");
    machine.files.addFile(home + "/rust/Cargo.toml");
    machine.files.failing = [&](const fakes::FakeFileManager::Call& call) {
        if (call.operation == "exists" && call.path.ends_with("/Cargo.toml")) asked = std::this_thread::get_id();
        return false;
    };
    survey();
    EXPECT_NE(asked, std::thread::id());
    EXPECT_NE(asked, std::this_thread::get_id());
    ASSERT_EQ(model().reclaimables().size(), 1U);
    const NodeRef target = folderAt(model().root(), home + "/rust/target");
    ASSERT_TRUE(target && reclaimCategoryOf(*target) != nullptr);
    EXPECT_EQ(reclaimCategoryOf(*target)->id, "rust_target");
}

TEST_F(AppModelFinishTest, previousTreeIsReleasedInTask) {
    survey();
    surveyUpToClassification();
    classifyUpToTheRecord();
    machine.tasks.runNext();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    // The old tree, then the measure of the Trash.
    EXPECT_EQ(machine.tasks.waiting(), (std::vector{TaskPriority::utility, TaskPriority::utility}));
    machine.tasks.release();
}

TEST_F(AppModelFinishTest, recordIsWrittenOffMainThreadBeforePhaseTurns) {
    surveyUpToClassification();
    classifyUpToTheRecord();
    EXPECT_FALSE(historyFile());
    EXPECT_TRUE(model().history().empty());
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
    machine.tasks.runNext();
    EXPECT_TRUE(historyFile());
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    EXPECT_EQ(model().history().size(), 1U);
    machine.tasks.release();
}

TEST_F(AppModelFinishTest, recordIsDatedAfterClassification) {
    surveyUpToClassification();
    machine.clock.advance(60);
    classifyUpToTheRecord();
    const TimePoint classified = machine.clock.now();
    machine.clock.advance(60);
    machine.tasks.runNext();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    ASSERT_EQ(model().history().size(), 1U);
    EXPECT_EQ(model().history().front().date, classified);
    machine.tasks.release();
}

TEST_F(AppModelFinishTest, recordHoldsFiguresOfSurvey) {
    fillHome();
    machine.vitals.setVolume(home, VolumeInfo{500'000, 200'000, 300'000});
    survey();
    ASSERT_EQ(model().history().size(), 1U);
    const SurveyRecord& record = model().history().front();
    EXPECT_EQ(record.date, machine.clock.now());
    EXPECT_EQ(record.totalScanned, 3'127'000'000);
    EXPECT_EQ(record.used, 300'000);
    EXPECT_EQ(record.free, 200'000);
    EXPECT_EQ(record.reclaimable, 60'000'000);
    EXPECT_EQ(record.types,
              (std::map<std::string, std::int64_t>{
                  {"video", 3'000'000'000}, {"diskImage", 60'000'000}, {"archive", 7'000'000}, {"other", 60'000'000}}));
    EXPECT_EQ(record.folders, (SizeByPath{{home, 3'127'000'000},
                                          {home + "/projects", 3'070'000'000},
                                          {home + "/Library", 50'000'000},
                                          {home + "/Library/Caches", 50'000'000},
                                          {home + "/Library/Caches/Yarn", 50'000'000}}));
    ASSERT_TRUE(historyFile());
    EXPECT_EQ(decodeHistory(*historyFile()), model().history());
}

TEST_F(AppModelFinishTest, recordsFoldersFromTwentyMillionBytes) {
    machine.directories.file(home + "/enough/file", 20'000'000);
    machine.directories.file(home + "/short/file", 19'999'999);
    survey();
    EXPECT_EQ(model().history().front().folders, (SizeByPath{{home, 39'999'999}, {home + "/enough", 20'000'000}}));
}

TEST_F(AppModelFinishTest, recordsFourHundredLargestFolders) {
    for (int number = 0; number < 401; ++number)
        machine.directories.file(home + "/" + std::to_string(number) + "/file",
                                 static_cast<std::uint64_t>(20'000'000 + number));
    survey();
    const SizeByPath folders = model().history().front().folders.value();
    EXPECT_EQ(folders.size(), 400U);
    EXPECT_FALSE(folders.contains(home + "/0"));
    EXPECT_FALSE(folders.contains(home + "/1"));
    EXPECT_TRUE(folders.contains(home + "/2"));
}

TEST_F(AppModelFinishTest, unreadableVolumeIsRecordedAsZero) {
    machine.vitals.setVolume(home, std::nullopt);
    survey();
    EXPECT_EQ(model().history().front().used, 0);
    EXPECT_EQ(model().history().front().free, 0);
}

TEST_F(AppModelFinishTest, usedIsNeverNegative) {
    machine.vitals.setVolume(home, VolumeInfo{100, 150, 150});
    survey();
    EXPECT_EQ(model().history().front().used, 0);
    EXPECT_EQ(model().history().front().free, 150);
}

TEST_F(AppModelFinishTest, historyIsReadFromFileAgain) {
    survey();
    SurveyRecord other;
    other.date = 1'600'000'000;
    other.totalScanned = 5;
    machine.files.addFile("/home/me/support/Zelk/history.json", encodeHistory({other}));
    survey();
    ASSERT_EQ(model().history().size(), 2U);
    EXPECT_EQ(model().history().front(), other);
}

TEST_F(AppModelFinishTest, unwritableHistoryGrowsInMemory) {
    machine.files.failing = [](const fakes::FakeFileManager::Call& call) { return call.operation == "replaceDurably"; };
    survey();
    EXPECT_EQ(model().history().size(), 1U);
    EXPECT_FALSE(historyFile());
}

TEST_F(AppModelFinishTest, projectionAndChangesUseHistory) {
    EXPECT_FALSE(model().daysUntilFull());
    EXPECT_FALSE(model().folderChanges());
    machine.vitals.setVolume(home, VolumeInfo{1'000, 900, 900});
    survey();
    machine.clock.advance(5 * 3600);
    machine.directories.file(home + "/films/new.mov", 80'000'000);
    machine.vitals.setVolume(home, VolumeInfo{1'000, 400, 400});
    survey();
    EXPECT_EQ(model().daysUntilFull(), 0);  // 400 bytes at 2,400 a day
    ASSERT_TRUE(model().folderChanges());
    EXPECT_EQ(model().folderChanges()->appeared.size(), 2U);
}

}  // namespace
}  // namespace zelk
