// SPDX-License-Identifier: MIT
#include "platform/posix/DescriptorLimit.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <utility>

#include "fakes/InChild.h"
#include "platform/posix/DirectoryLadder.h"

#ifdef __linux__
#include "platform/linux/files/LinuxDirectoryReader.h"
#endif

namespace zelk {
namespace {

/// Returns the soft limit after raising it from `soft` with the hard limit `hard`; 0 if these cannot be set.
rlim_t raisedFrom(rlim_t soft, rlim_t hard) {
    rlimit limit{soft, hard};
    if (::setrlimit(RLIMIT_NOFILE, &limit) != 0) return 0;
    raiseDescriptorLimit();
    return ::getrlimit(RLIMIT_NOFILE, &limit) == 0 && limit.rlim_max == hard ? limit.rlim_cur : 0;
}

TEST(DescriptorLimit, isRaisedTo8192) {
    EXPECT_TRUE(fakes::inChild([] { return raisedFrom(64, 20000) == 8192; }));
}

TEST(DescriptorLimit, isRaisedToTheHardLimitAtMost) {
    EXPECT_TRUE(fakes::asOrdinaryUser([] { return raisedFrom(64, 1000) == 1000; }));
}

TEST(DescriptorLimit, isNeverLowered) {
    EXPECT_TRUE(fakes::inChild([] { return raisedFrom(9000, 20000) == 9000; }));
}

// A reader holds sixteen and briefly a few more; 128 are reserved for everything else.
TEST(DescriptorLimit, allowsOneReaderPerTwentyDescriptorsAndAtLeastOne) {
    const std::pair<rlim_t, std::int64_t> rows[] = {{16, 1}, {128, 1}, {167, 1}, {168, 2}, {1024, 44}, {8192, 403}};
    for (const auto& [descriptors, readers] : rows) {
        EXPECT_TRUE(fakes::inChild([descriptors = descriptors, readers = readers] {
            const rlimit limit{descriptors, descriptors};
            return ::setrlimit(RLIMIT_NOFILE, &limit) == 0 && readersWithinDescriptorLimit() == readers;
        })) << descriptors;
    }
    EXPECT_GE(20U, DirectoryLadder::maximumOpen + 4);
}

#ifdef __linux__
TEST(DescriptorLimit, limitsReadersOfTheDirectoryService) {
    EXPECT_TRUE(fakes::inChild([] {
        const rlimit limit{328, 328};
        return ::setrlimit(RLIMIT_NOFILE, &limit) == 0 && LinuxDirectoryService().maximumReaders() == 10;
    }));
}
#endif

}  // namespace
}  // namespace zelk
