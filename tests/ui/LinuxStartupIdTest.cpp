// SPDX-License-Identifier: MIT
#include "ui/shell/linux/StartupId.h"

#include <gmock/gmock.h>

namespace zelk {

namespace {

using testing::ElementsAre;

/// `text` filled up with zeros to the size of a piece.
std::string piece(std::string text) {
    text.resize(20);
    return text;
}

}  // namespace

TEST(LinuxStartupId, hasTimeAtItsEnd) {
    EXPECT_EQ(timeOfStart("panel-1234-host-zelk-0_TIME98765"), 98765U);
    EXPECT_EQ(timeOfStart("_TIME1"), 1U);
    EXPECT_EQ(timeOfStart("_TIME4294967295"), 4294967295U);
    EXPECT_EQ(timeOfStart("host_TIMER-0_TIME7"), 7U) << "the last one counts";
}

TEST(LinuxStartupId, mayHaveNoTime) {
    for (const char* id : {"", "panel-1", "_TIME", "_TIME0", "_TIME12x", "_TIMEx", "_TIME-1", "_TIME 5", "_TIME+5",
                           "_TIME4294967296", "5_TIME", "5_time5"})
        EXPECT_EQ(timeOfStart(id), std::nullopt) << id;
}

TEST(LinuxStartupId, endIsToldInPiecesThatFitAnEvent) {
    EXPECT_THAT(endOfStartup("a"), ElementsAre(piece("remove: ID=\"a\"")));
    EXPECT_THAT(endOfStartup("0123456"), ElementsAre(piece("remove: ID=\"0123456\""), piece("")))
        << "a piece that is full does not end the message";
    EXPECT_THAT(endOfStartup("012345"), ElementsAre(piece("remove: ID=\"012345\"")));
    EXPECT_THAT(endOfStartup("0123456789_TIME5"), ElementsAre("remove: ID=\"01234567", piece("89_TIME5\"")));
}

TEST(LinuxStartupId, endEscapesWhatWouldCloseTheId) {
    EXPECT_THAT(endOfStartup("\"\\"), ElementsAre(piece("remove: ID=\"\\\"\\\\\"")));
}

}  // namespace zelk
