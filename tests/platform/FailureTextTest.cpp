// SPDX-License-Identifier: MIT
#include "platform/posix/FailureText.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace zelk {
namespace {

TEST(FailureText, namesTheItemAndTheReason) {
    EXPECT_EQ(failureText("“%1” couldn’t be removed: %2", "notes.txt", "Permission denied"),
              "“notes.txt” couldn’t be removed: Permission denied");
}

TEST(FailureText, usesTheSystemsMessage) {
    EXPECT_EQ(systemText(ENOENT), "No such file or directory");
    EXPECT_EQ(systemText(ENOSPC), "No space left on device");
}

TEST(ReadableName, keepsValidText) {
    for (const char* name : {"", "plain", "Grün", "文書", "😀 file", "\xf4\x8f\xbf\xbf", "a b"})
        EXPECT_EQ(readableName(name), name);
}

TEST(ReadableName, replacesInvalidUtf8) {
    EXPECT_EQ(readableName("a\xff"
                           "b"),
              "a\uFFFDb");
    EXPECT_EQ(readableName("\xc3"), "\uFFFD");
    EXPECT_EQ(readableName("\xe2\x82"), "\uFFFD\uFFFD");
    EXPECT_EQ(readableName("\xc0\xaf"), "\uFFFD\uFFFD");
    EXPECT_EQ(readableName("\xed\xa0\x80"), "\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(readableName("\xe0\x80\x80"), "\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(readableName("\xf4\x90\x80\x80"), "\uFFFD\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(readableName("\xf5z"), "\uFFFDz");
}

TEST(ReadableName, showsControlCharactersAsSymbols) {
    EXPECT_EQ(readableName("a\nb\tc\x7f"), "a␊b␉c␡");
    EXPECT_EQ(readableName("\xc2\x85"), "\uFFFD");
}

TEST(ReadableName, replacesDirectionControls) {
    EXPECT_EQ(readableName("\u202Egpj.exe\u2066\u200F\u061C\u2028"), "\uFFFDgpj.exe\uFFFD\uFFFD\uFFFD\uFFFD");
}

}  // namespace
}  // namespace zelk
