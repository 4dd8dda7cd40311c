// SPDX-License-Identifier: MIT
// Moving one of the largest files to the Trash: which results drop it, and which keep it.
#include "AppModelFixture.h"

namespace zelk {
namespace {

using Strings = std::vector<std::string>;

class AppModelTrashFileTest : public AppModelFixture {
protected:
    /// Surveys the home of fillHome(), whose files can be moved to the Trash too.
    void surveyHome() {
        fillHome();
        for (const std::string& path : {film, image}) machine.files.addFile(path);
        survey();
    }
    void add(const std::string& path) {
        machine.directories.file(path, 5'000'000'000, 1'000);
        machine.files.addFile(path);
    }

    /// Returns when every closure that was posted to the main thread has run.
    void trash(const std::string& path) {
        model().trashLargeFile(path);
        runWhatIsThere();
    }

    bool lists(const std::string& path) {
        const auto& files = model().insights().topFiles;
        return std::any_of(files.begin(), files.end(), [&](const LargeFile& file) { return file.path == path; });
    }

    const std::string film = home + "/projects/film.mov";
    const std::string image = home + "/projects/system.iso";
};

TEST_F(AppModelTrashFileTest, movesFileToTrashAndOutOfList) {
    surveyHome();
    ASSERT_TRUE(lists(film));
    takeSignals();
    trash(film);
    EXPECT_EQ(machine.trash.trashed(), Strings{film});
    EXPECT_FALSE(lists(film));
    EXPECT_TRUE(lists(image));
    EXPECT_EQ(takeSignals(), Strings{"insights"});
}

TEST_F(AppModelTrashFileTest, otherResultsStillCountFile) {
    surveyHome();
    const ScanInsights before = model().insights();
    const std::int64_t size = model().root()->size;
    const std::int64_t scanned = model().bytesScanned();
    const std::int64_t recoverable = model().reclaimableBytes();
    trash(film);
    trash(image);
    EXPECT_EQ(model().insights().typeTotals, before.typeTotals);
    EXPECT_EQ(model().insights().diskImages, before.diskImages);
    EXPECT_EQ(model().root()->size, size);
    EXPECT_EQ(model().bytesScanned(), scanned);
    EXPECT_EQ(model().reclaimableBytes(), recoverable);
    EXPECT_EQ(model().insights().topFiles.size(), before.topFiles.size() - 2);
}

TEST_F(AppModelTrashFileTest, failedMoveKeepsFileInList) {
    surveyHome();
    machine.files.failing = [](const auto& call) { return call.operation == "trash"; };
    const ScanInsights before = model().insights();
    takeSignals();
    trash(film);
    EXPECT_EQ(model().insights(), before);
    EXPECT_EQ(takeSignals(), Strings());
}

TEST_F(AppModelTrashFileTest, movesFileOffMainThread) {
    surveyHome();
    machine.tasks.hold();
    model().trashLargeFile(film);
    EXPECT_EQ(machine.tasks.waiting(), std::vector{TaskPriority::userInitiated});
    EXPECT_TRUE(machine.trash.trashed().empty());
    machine.tasks.runNext();
    EXPECT_EQ(machine.trash.trashed(), Strings{film});
    EXPECT_TRUE(lists(film));
    runUntil([&] { return !lists(film); });
    machine.tasks.release();
}

TEST_F(AppModelTrashFileTest, sameFileTwiceIsMovedOnce) {
    surveyHome();
    machine.tasks.hold();
    model().trashLargeFile(film);
    model().trashLargeFile(film);
    takeSignals();
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_EQ(machine.trash.trashed(), Strings{film});
    EXPECT_EQ(takeSignals(), Strings{"insights"});
    EXPECT_TRUE(lists(image));
}

TEST_F(AppModelTrashFileTest, removesEveryEntryOfPath) {
    fillHome();
    machine.files.addFile(film);
    model().setScanRoots({home, home + "/projects"});
    survey();
    const auto& files = model().insights().topFiles;
    const auto isFilm = [&](const LargeFile& file) { return file.path == film; };
    ASSERT_EQ(std::count_if(files.begin(), files.end(), isFilm), 2);
    trash(film);
    EXPECT_FALSE(lists(film));
}

TEST_F(AppModelTrashFileTest, missingFileStaysInListUntilNextSurvey) {
    surveyHome();
    machine.files.erase(film);
    trash(film);
    EXPECT_TRUE(lists(film));
}

TEST_F(AppModelTrashFileTest, acceptsAnyBytesInName) {
    const std::string strange = home + "/a\nb\xff\xc3.mov";
    add(strange);
    fillHome();
    survey();
    ASSERT_TRUE(lists(strange));
    trash(strange);
    EXPECT_EQ(machine.trash.trashed(), Strings{strange});
    EXPECT_FALSE(lists(strange));
}

TEST_F(AppModelTrashFileTest, ignoresInvalidPaths) {
    surveyHome();
    machine.tasks.hold();
    for (const char* path : {"", "/", "film.mov", "/home/me/../you/film.mov"}) model().trashLargeFile(path);
    EXPECT_TRUE(machine.tasks.waiting().empty());
    machine.tasks.release();
}

TEST_F(AppModelTrashFileTest, ignoresPathsOutsideScanRoots) {
    machine.files.addFile("/elsewhere/dear.mov");
    machine.files.addFile(home + "2/dear.mov");
    machine.tasks.hold();
    model().trashLargeFile("/elsewhere/dear.mov");
    machine.tasks.release();
    surveyHome();
    trash("/elsewhere/dear.mov");
    trash(home + "2/dear.mov");
    EXPECT_EQ(machine.trash.trashed(), Strings());
}

TEST_F(AppModelTrashFileTest, keepsNeighbourWithLongerName) {
    const std::string neighbour = film + ".part";
    add(neighbour);
    surveyHome();
    trash(film);
    EXPECT_FALSE(lists(film));
    EXPECT_TRUE(lists(neighbour));
}

// The disk changes after the survey.

TEST_F(AppModelTrashFileTest, movesLinkThatReplacedFile) {
    surveyHome();
    machine.files.addFile("/elsewhere/dear.mov", "dear");
    machine.files.addLink(film, "/elsewhere/dear.mov");
    trash(film);
    EXPECT_EQ(machine.trash.trashed(), Strings{film});
    EXPECT_EQ(machine.files.content("/elsewhere/dear.mov"), "dear");
    EXPECT_FALSE(lists(film));
}

TEST_F(AppModelTrashFileTest, folderThatReplacedFileStaysComplete) {
    surveyHome();
    machine.files.erase(film);
    machine.files.addFile(film + "/kept", "kept");
    trash(film);
    EXPECT_EQ(machine.trash.trashed(), Strings{film});
    EXPECT_EQ(machine.files.content(machine.trash.path + "/film.mov/kept"), "kept");
    EXPECT_TRUE(lists(image));
}

TEST_F(AppModelTrashFileTest, removesFileFromNewerList) {
    surveyHome();
    machine.tasks.hold();
    model().trashLargeFile(film);
    model().startScan();
    const NodeRef before = model().root();
    runUntil([&] { return !(model().root() == before); });
    ASSERT_TRUE(lists(film));
    machine.tasks.release();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    EXPECT_EQ(machine.trash.trashed(), Strings{film});
    EXPECT_FALSE(lists(film));
    EXPECT_TRUE(lists(image));
}

TEST_F(AppModelTrashFileTest, runningSurveyDoesNotListTrashedFile) {
    surveyHome();
    addWideFolder(home + "/wide");
    machine.directories.hold(home + "/wide/inner");
    machine.tasks.hold();
    model().trashLargeFile(film);
    model().startScan();
    runUntil([&] { return model().itemsScanned() > 0; });
    machine.tasks.release();
    runWhatIsThere();
    ASSERT_EQ(machine.trash.trashed(), Strings{film});
    machine.directories.release();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    EXPECT_FALSE(lists(film));
    EXPECT_TRUE(lists(image));
    // The one after that believes the disk.
    survey();
    EXPECT_TRUE(lists(film));
}

TEST_F(AppModelTrashFileTest, modelMayBeDestroyedMeanwhile) {
    surveyHome();
    machine.tasks.hold();
    model().trashLargeFile(film);
    destroyModel();
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_EQ(machine.trash.trashed(), Strings{film});
}

}  // namespace
}  // namespace zelk
