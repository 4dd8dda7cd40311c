// SPDX-License-Identifier: MIT
// A whole survey through macOS's reader.
#include <gtest/gtest.h>

#include <memory>
#include <variant>

#include "platform/linux/LinuxDirectoryReader.h"
#include "platform/macos/BulkDirectoryReader.h"
#include "platform/posix/PosixClock.h"
#include "scan/ScanEngine.h"

namespace zelk {
namespace {

update::Finished survey(DirectoryService& directories, const std::string& root) {
    PosixClock clock;
    const auto queue = std::make_shared<UpdateQueue>();
    ScanEngine(directories, clock).runHere(queue, {root});
    for (const ScanUpdate& update : queue->takeAll().updates) {
        if (const auto* finished = std::get_if<update::Finished>(&update)) return *finished;
    }
    ADD_FAILURE() << "the survey has no end";
    return {};
}

TEST(BulkSurvey, countsWhatTheLinuxReaderCounts) {
    BulkDirectoryService bulk;
    LinuxDirectoryService own;
    const update::Finished got = survey(bulk, "/usr/include");
    const update::Finished expected = survey(own, "/usr/include");
    ASSERT_GT(expected.stats.filesScanned, 0);
    EXPECT_EQ(got.stats.filesScanned, expected.stats.filesScanned);
    EXPECT_EQ(got.stats.dirsScanned, expected.stats.dirsScanned);
    EXPECT_EQ(got.stats.totalBytes, expected.stats.totalBytes);
    EXPECT_EQ(got.stats.blockedPaths, expected.stats.blockedPaths);
    ASSERT_TRUE(got.root && expected.root);
    EXPECT_EQ(got.root->size, expected.root->size);
}

}  // namespace
}  // namespace zelk
