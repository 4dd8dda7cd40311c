// SPDX-License-Identifier: MIT
#include "platform/posix/DescriptorLimit.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include "fakes/InChild.h"

namespace zelk {
namespace {

/// The soft limit after raising it from `soft` under `hard`; 0 if it cannot be set.
rlim_t raisedFrom(rlim_t soft, rlim_t hard) {
    rlimit limit{soft, hard};
    if (::setrlimit(RLIMIT_NOFILE, &limit) != 0) return 0;
    raiseDescriptorLimit();
    return ::getrlimit(RLIMIT_NOFILE, &limit) == 0 && limit.rlim_max == hard ? limit.rlim_cur : 0;
}

TEST(DescriptorLimit, isRaisedWithinReason) {
    EXPECT_TRUE(fakes::inChild([] { return raisedFrom(64, 20000) == 8192; }));
}

TEST(DescriptorLimit, isRaisedToWhatIsAllowed) {
    EXPECT_TRUE(fakes::asOrdinaryUser([] { return raisedFrom(64, 1000) == 1000; }));
}

TEST(DescriptorLimit, isNeverLowered) {
    EXPECT_TRUE(fakes::inChild([] { return raisedFrom(9000, 20000) == 9000; }));
}

}  // namespace
}  // namespace zelk
