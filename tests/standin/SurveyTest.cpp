// SPDX-License-Identifier: MIT
// A complete survey with macOS's reader.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "platform/linux/files/LinuxDirectoryReader.h"
#include "platform/macos/BulkDirectoryReader.h"
#include "standin/BulkStandIn.h"
#include "standin/Surveyed.h"

namespace zelk {
namespace {

TEST(BulkSurvey, matchesTheLinuxReader) {
    BulkDirectoryService bulk;
    LinuxDirectoryService own;
    const update::Finished got = surveyed(bulk, "/usr/include");
    const update::Finished expected = surveyed(own, "/usr/include");
    ASSERT_GT(expected.stats.filesScanned, 0);
    EXPECT_EQ(got.stats.filesScanned, expected.stats.filesScanned);
    EXPECT_EQ(got.stats.dirsScanned, expected.stats.dirsScanned);
    EXPECT_EQ(got.stats.totalBytes, expected.stats.totalBytes);
    EXPECT_EQ(got.stats.blockedPaths, expected.stats.blockedPaths);
    ASSERT_TRUE(got.root && expected.root);
    EXPECT_EQ(got.root->size, expected.root->size);
}

TEST(BulkSurvey, entryWithErrorIsBlockedAndTheRestCounts) {
    namespace fs = std::filesystem;
    std::string top = fs::temp_directory_path() / "zelk-survey-XXXXXX";
    ASSERT_NE(mkdtemp(top.data()), nullptr);
    fs::create_directories(top + "/Documents");
    for (const char* name : {"/film.mov", "/other", "/Documents/letter"}) std::ofstream(top + name) << "content";
    LinuxDirectoryService own;
    BulkDirectoryService bulk;
    const update::Finished expected = surveyed(own, top);
    BulkStandIn::unasked() = {"film.mov", "Documents"};
    const update::Finished got = surveyed(bulk, top);
    BulkStandIn::unasked().clear();
    EXPECT_EQ(expected.stats.blockedPaths, 0);
    EXPECT_EQ(got.stats.blockedPaths, 1) << "the film, of which nothing is known";
    EXPECT_EQ(got.stats.filesScanned, expected.stats.filesScanned - 1);
    EXPECT_LE(got.stats.totalBytes, expected.stats.totalBytes);
    EXPECT_GE(got.stats.totalBytes, 0);
    fs::remove_all(top);
}

}  // namespace
}  // namespace zelk
