// SPDX-License-Identifier: MIT
#include "cli/ProgressLine.h"

#include <gmock/gmock.h>

#include <clocale>
#include <vector>

#include "cli/VisibleText.h"
#include "fakes/FakePlatform.h"

namespace zelk::cli {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Progress : public testing::Test {
protected:
    Progress() { std::setlocale(LC_CTYPE, "C.UTF-8"); }
    ~Progress() override { std::setlocale(LC_CTYPE, "C"); }

    std::vector<std::string> printed;
    std::size_t columns = 60;
    fakes::FakeClock clock;
    const std::function<void(std::string_view)> print = [this](std::string_view text) { printed.emplace_back(text); };
    const std::function<std::size_t()> width = [this] { return columns; };
};

TEST_F(Progress, isShownOverWhatWasThereAndErased) {
    {
        ProgressLine line(clock, print, width);
        line.show({20'000, 1'300'000, "/usr/share"});
    }
    EXPECT_THAT(printed, ElementsAre("\r\x1B[K20,000 items, 1.3 MB  /usr/share", "\r\x1B[K"));
}

TEST_F(Progress, leavesATerminalAloneThatSawNone) {
    { const ProgressLine line(clock, print, width); }
    EXPECT_THAT(printed, IsEmpty());
}

TEST_F(Progress, isShownTenTimesASecondAtMost) {
    ProgressLine line(clock, print, width);
    for (int step = 0; step < 100; ++step) {
        line.show({step, 0, "/a"});
        clock.advance(0.015625);  // a power of two, so that the sum is exact
    }
    // At 0, 0.109375, 0.21875 and so on.
    EXPECT_EQ(printed.size(), 15U);
    EXPECT_EQ(printed[1], "\r\x1B[K7 items, 0 bytes  /a");
}

TEST_F(Progress, followsTheWidthOfTheTerminal) {
    ProgressLine line(clock, print, width);
    line.show({1, 5, "/usr/share"});
    columns = 22;
    clock.advance(1);
    line.show({1, 5, "/usr/share"});
    EXPECT_THAT(printed, ElementsAre("\r\x1B[K1 item, 5 bytes  /usr/share", "\r\x1B[K1 item, 5 bytes  ...e"));
}

TEST_F(Progress, fitsIntoAnyWidthAndLeavesTheLastColumnFree) {
    const update::Progress progress{1234, 999, "/日本語/\x1B[2J\xFF/aaa"};
    for (std::size_t at = 0; at < 60; ++at)
        EXPECT_LE(columnsOf(ProgressLine::text(progress, at)), at == 0 ? 0 : at - 1) << at;
    EXPECT_EQ(ProgressLine::text(progress, 22), "");
    EXPECT_EQ(ProgressLine::text(progress, 23), "1,234 items, 999 bytes");
    EXPECT_EQ(ProgressLine::text(progress, 25), "1,234 items, 999 bytes");
    EXPECT_EQ(ProgressLine::text(progress, 29), "1,234 items, 999 bytes  ...a");
    EXPECT_EQ(ProgressLine::text(progress, 60), "1,234 items, 999 bytes  /日本語/\\x1B[2J\\xFF/aaa");
}

}  // namespace
}  // namespace zelk::cli
