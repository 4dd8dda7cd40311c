// SPDX-License-Identifier: MIT
// A few rounds of zelk_trash_rounds, which can be run by hand for hundreds.
#include <gtest/gtest.h>

#include "fakes/TracedProgram.h"

namespace zelk {
namespace {

TEST(TrashRounds, concurrentTrashingAndEmptyingLosesNothing) {
    EXPECT_EQ(fakes::runProgram({ZELK_TRASH_ROUNDS, "race", "3"}), 0);
}

TEST(TrashRounds, killedCleaningLosesNothingAndLeavesNoOrphans) {
    EXPECT_EQ(fakes::runProgram({ZELK_TRASH_ROUNDS, "kill", "10"}), 0);
}

}  // namespace
}  // namespace zelk
