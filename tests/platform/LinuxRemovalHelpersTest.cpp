// SPDX-License-Identifier: MIT
// How many threads help, and a machine that has no more.
#include <gtest/gtest.h>
#include <sys/syscall.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <utility>

#include "fakes/SystemCallGate.h"
#include "platform/posix/RemovalHelpers.h"

namespace zelk {
namespace {

std::size_t threadsStartedFor(std::size_t count) {
    std::size_t started = 0;
    fakes::behindGate(
        SYS_clone3, [&](unsigned) { return ++started, 0; },
        [&] { removeInRanges(count, [](std::size_t, std::size_t) {}); });
    return started;
}

TEST(HelpersInRanges, areOneForEachFurtherRangeUpToTheMost) {
    for (const auto& [count, worthwhile] :
         {std::pair(0U, 0U), std::pair(1U, 0U), std::pair(32U, 0U), std::pair(33U, 1U), std::pair(96U, 2U)})
        EXPECT_LE(threadsStartedFor(count), worthwhile) << count;
    EXPECT_EQ(threadsStartedFor(64), std::min<std::size_t>(RemovalHelpers::usualMost(), 1));
    EXPECT_GE(threadsStartedFor(10'000), RemovalHelpers::usualMost());
}

TEST(HelpersInRanges, areMissedByNobody) {
    std::size_t numbers = 0;
    fakes::behindGate(
        SYS_clone3, [](unsigned) { return EAGAIN; },
        [&] { removeInRanges(1000, [&](std::size_t first, std::size_t end) { numbers += end - first; }); });
    EXPECT_EQ(numbers, 1000u);
}

TEST(HelpersWithoutThreads, areNotCounted) {
    RemovalHelpers helpers(1);
    bool ran = false;
    bool started = true;
    fakes::behindGate(
        SYS_clone3, [](unsigned) { return EAGAIN; }, [&] { started = helpers.start([&] { ran = true; }); });
    EXPECT_FALSE(started);
    EXPECT_FALSE(ran);
    helpers.wait();
    EXPECT_TRUE(helpers.mayStart());
    EXPECT_TRUE(helpers.start([&] { ran = true; }));
    helpers.wait();
    EXPECT_TRUE(ran);
}

}  // namespace
}  // namespace zelk
