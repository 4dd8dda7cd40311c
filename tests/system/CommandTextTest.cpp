// SPDX-License-Identifier: MIT
#include "system/CommandText.h"

#include <gtest/gtest.h>

namespace zelk {
namespace {

ChildOutcome exited(int status, const std::string& output) {
    return {std::nullopt, status, output};
}

TEST(CommandText, successShowsTheOutputAsItIs) {
    for (const std::string output :
         {"Thinned local snapshots:\ncom.example.2021-04-05\n", " ", "\n", "a\rb\r", "Größe ✓", "\\\""}) {
        EXPECT_EQ(textOfRun(exited(0, output)), output);
        EXPECT_EQ(textOfAdminRun(exited(0, output)), output);
    }
}

TEST(CommandText, silentSuccessIsDoneOrEmpty) {
    EXPECT_EQ(textOfRun(exited(0, "")), "done");
    EXPECT_EQ(textOfAdminRun(exited(0, "")), "");
}

TEST(CommandText, everyOtherStatusIsARefusal) {
    for (const int status : {1, 2, 15, 64, 77, 126, 127, 128, 255, -1}) {
        EXPECT_EQ(textOfRun(exited(status, "why\n")), "cancelled") << status;
        EXPECT_EQ(textOfRun(exited(status, "")), "cancelled") << status;
        EXPECT_EQ(textOfAdminRun(exited(status, "why\n")), "cancelled or failed: why\n") << status;
        EXPECT_EQ(textOfAdminRun(exited(status, "")), "cancelled or failed: ") << status;
    }
}

TEST(CommandText, outputThatIsNotUtf8CountsAsNone) {
    for (const char* output : {"\xff", "fine until here \xc3", "\xc0\x80", "\xed\xa0\x80"}) {
        EXPECT_EQ(textOfRun(exited(0, output)), "done");
        EXPECT_EQ(textOfAdminRun(exited(0, output)), "");
        EXPECT_EQ(textOfRun(exited(1, output)), "cancelled");
        EXPECT_EQ(textOfAdminRun(exited(1, output)), "cancelled or failed: ");
    }
}

TEST(CommandText, failedLaunchGivesItsReason) {
    const ChildOutcome outcome{"No such file or directory", 0, ""};
    EXPECT_EQ(textOfRun(outcome), "failed: No such file or directory");
    EXPECT_EQ(textOfAdminRun(outcome), "failed: No such file or directory");
    const ChildOutcome strange{"Permission denied", 1, "output"};
    EXPECT_EQ(textOfRun(strange), "failed: Permission denied");
    EXPECT_EQ(textOfAdminRun(strange), "failed: Permission denied");
}

}  // namespace
}  // namespace zelk
