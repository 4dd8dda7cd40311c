// SPDX-License-Identifier: MIT
// Trashed files are counted but not listed among the largest files.
#include "ScanFixture.h"

namespace zelk {
namespace {

class TrashInSurveyTest : public ScanFixture {
protected:
    TrashInSurveyTest() { trash = TrashPlaces({"/r/share/Trash/files"}, {"/.Trash-7/files"}); }

    static std::vector<std::string> largest(const ScanResult& result) {
        std::vector<std::string> paths;
        for (const LargeFile& file : result.insights.topFiles) paths.push_back(file.path);
        return paths;
    }
};

using Paths = std::vector<std::string>;

TEST_F(TrashInSurveyTest, trashedFilesAreCounted) {
    disk.file("/r/share/Trash/files/film.mov", 900);
    disk.file("/r/share/Trash/files/a/b/song.mp3", 80);
    disk.file("/r/kept.mov", 7);
    const ScanResult result = scan({"/r"});
    EXPECT_EQ(result.stats.totalBytes, 987);
    EXPECT_EQ(result.stats.filesScanned, 3);
    EXPECT_EQ(at(result, "/r/share/Trash/files")->size, 980);
    EXPECT_EQ(at(result, "/r/share/Trash/files/a/b")->ownFileBytes, 80);
    EXPECT_EQ(result.insights.typeTotals[FileType::video], (TypeTally{907, 2}));
    EXPECT_EQ(result.insights.typeTotals[FileType::audio], (TypeTally{80, 1}));
}

TEST_F(TrashInSurveyTest, trashedFilesAreNotListedAsLargest) {
    disk.file("/r/share/Trash/files/film.mov", 900);
    disk.file("/r/share/Trash/files/a/song.mp3", 800);
    disk.file("/r/share/Trash/files/a/b/c/d/e/f/g/deep.mp3", 700);
    disk.file("/r/kept.mov", 7);
    EXPECT_EQ(largest(scan({"/r"})), Paths{"/r/kept.mov"});
}

// Folders at this depth are walked by the thread that took their ancestor.
TEST_F(TrashInSurveyTest, deepTrashIsNotListedAsLargest) {
    disk.file("/r/1/2/3/4/5/6/.Trash-7/files/film.mov", 900);
    disk.file("/r/1/2/3/4/5/6/.Trash-7/files/a/b/film.mov", 900);
    disk.file("/r/1/2/3/4/5/6/.Trash-7/info/kept", 9);
    disk.file("/r/1/2/3/4/5/6/z/kept", 8);
    EXPECT_EQ(largest(scan({"/r"})), (Paths{"/r/1/2/3/4/5/6/.Trash-7/info/kept", "/r/1/2/3/4/5/6/z/kept"}));
}

TEST_F(TrashInSurveyTest, filesBesideTheTrashAreListedAsLargest) {
    workers(1);
    disk.file("/r/share/Trash/info/a.trashinfo", 4);
    disk.file("/r/share/Trash/files2/b", 3);
    disk.file("/r/share/Trash/files/film.mov", 900);
    disk.file("/r/share/Trash/c", 2);
    disk.file("/r/zzz/files/d", 1);
    EXPECT_EQ(largest(scan({"/r"})), (Paths{"/r/share/Trash/info/a.trashinfo", "/r/share/Trash/files2/b",
                                            "/r/share/Trash/c", "/r/zzz/files/d"}));
}

TEST_F(TrashInSurveyTest, rootWithinTheTrashListsNoLargestFiles) {
    disk.file("/r/share/Trash/files/film.mov", 900);
    disk.file("/r/share/Trash/files/a/song.mp3", 800);
    for (const char* root : {"/r/share/Trash/files", "/r/share/Trash/files/", "/r/share/Trash/files/a"}) {
        const ScanResult result = scan({root});
        EXPECT_GT(result.stats.totalBytes, 0) << root;
        EXPECT_EQ(largest(result), Paths()) << root;
    }
    EXPECT_EQ(largest(scan({"/r/share/Trash/files/a", "/r/share"})), Paths());
}

TEST_F(TrashInSurveyTest, trashDoesNotDisplaceOtherFiles) {
    for (int file = 0; file < 300; ++file) disk.file("/r/share/Trash/files/" + std::to_string(file), 1'000);
    for (int file = 0; file < 250; ++file) disk.file("/r/kept/" + std::to_string(file), 10);
    EXPECT_EQ(scan({"/r"}).insights.topFiles.size(), 250U);
}

TEST_F(TrashInSurveyTest, diskImagesInTheTrashAreListed) {
    disk.file("/r/share/Trash/files/system.iso", 60'000'000);
    EXPECT_EQ(scan({"/r"}).insights.diskImages.size(), 1U);
}

TEST_F(TrashInSurveyTest, unknownTrashIsListedLikeAnyFolder) {
    trash = {};
    disk.file("/r/share/Trash/files/film.mov", 900);
    disk.file("/r/.Trash-7/files/film.mov", 800);
    EXPECT_EQ(largest(scan({"/r"})), (Paths{"/r/share/Trash/files/film.mov", "/r/.Trash-7/files/film.mov"}));
}

TEST_F(TrashInSurveyTest, backgroundScanExcludesTheTrash) {
    disk.file("/r/share/Trash/files/film.mov", 900);
    disk.file("/r/kept", 7);
    EXPECT_EQ(largest(scanWhile([] {})), Paths{"/r/kept"});
}

}  // namespace
}  // namespace zelk
