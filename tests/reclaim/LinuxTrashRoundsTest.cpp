// SPDX-License-Identifier: MIT
// A few rounds of what zelk_trash_rounds does; by hand it is run for hundreds.
#include <gtest/gtest.h>

#include "fakes/TracedProgram.h"

namespace zelk {
namespace {

TEST(TrashRounds, processesThatTrashTheSameNamesAndOthersThatEmptyLoseNothing) {
    EXPECT_EQ(fakes::runProgram({ZELK_TRASH_ROUNDS, "race", "3"}), 0);
}

TEST(TrashRounds, aCleaningThatIsKilledLosesNothingAndLeavesNoOrphanForTheNextRun) {
    EXPECT_EQ(fakes::runProgram({ZELK_TRASH_ROUNDS, "kill", "10"}), 0);
}

}  // namespace
}  // namespace zelk
