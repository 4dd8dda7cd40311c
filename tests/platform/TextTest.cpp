// SPDX-License-Identifier: MIT
#include "platform/Text.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace zelk {
namespace {

constexpr EscapeForm octal{"\\", "01234567", 3};
constexpr EscapeForm hexadecimal{"\\x", "0123456789abcdef", 2};

TEST(Text, trimsBlanksAtBothEnds) {
    EXPECT_EQ(trimmed(" \t\r\na b \t\r\n"), "a b");
    EXPECT_EQ(trimmed("a"), "a");
    EXPECT_EQ(trimmed(" \n"), "");
    EXPECT_EQ(trimmed(""), "");
}

TEST(Text, takesLinesOneByOne) {
    std::string_view text = "one\n\nthree";
    EXPECT_EQ(takeLine(text), "one");
    EXPECT_EQ(takeLine(text), "");
    EXPECT_EQ(takeLine(text), "three");
    EXPECT_TRUE(text.empty());
    EXPECT_EQ(takeLine(text), "");
}

TEST(Text, takesPartsUpToASeparator) {
    std::string_view text = "a::b";
    EXPECT_EQ(takeUntil(text, ':'), "a");
    EXPECT_EQ(takeUntil(text, ':'), "");
    EXPECT_EQ(takeUntil(text, ':'), "b");
    EXPECT_TRUE(text.empty());
}

TEST(Text, takesWordsBetweenAnyBlanks) {
    std::string_view text = " \tone\r\n two ";
    EXPECT_EQ(takeWord(text), "one");
    EXPECT_EQ(takeWord(text), "two");
    EXPECT_EQ(takeWord(text), "");
}

TEST(Text, parsesWholeNumbersOnly) {
    EXPECT_EQ(parseNumber<std::int64_t>("-17"), -17);
    EXPECT_EQ(parseNumber<std::uint64_t>("18446744073709551615"), UINT64_MAX);
    EXPECT_EQ(parseNumber<std::uint64_t>("18446744073709551616"), std::nullopt);
    EXPECT_EQ(parseNumber<std::uint64_t>("-1"), std::nullopt);
    EXPECT_EQ(parseNumber<std::uint64_t>("1x"), std::nullopt);
    EXPECT_EQ(parseNumber<std::uint64_t>(" 1"), std::nullopt);
    EXPECT_EQ(parseNumber<std::uint64_t>(""), std::nullopt);
}

TEST(Text, decodesEscapedBytes) {
    EXPECT_EQ(unescaped("a\\040b\\134\\377", octal), "a b\\\xff");
    EXPECT_EQ(unescaped("\\x2da\\xff", hexadecimal), "-a\xff");
    EXPECT_EQ(unescaped("\\1345", octal), "\\5");
}

TEST(Text, keepsWhatIsNotACompleteEscape) {
    for (const std::string text : {"\\", "\\04", "\\048", "\\400", "a\\b", ""}) EXPECT_EQ(unescaped(text, octal), text);
    for (const std::string text : {"\\x", "\\x2", "\\x2g", "\\x2D", "\\2d"})
        EXPECT_EQ(unescaped(text, hexadecimal), text);
}

TEST(Text, decodesAnEscapeBehindABrokenOne) {
    EXPECT_EQ(unescaped("\\04\\040", octal), "\\04 ");
    EXPECT_EQ(unescaped("\\\\x2d", hexadecimal), "\\-");
}

TEST(Text, percentEncodesAllButUnreservedBytes) {
    EXPECT_EQ(percentEncoded("/azAZ09-_.~"), "/azAZ09-_.~");
    EXPECT_EQ(percentEncoded(" %@[`{:\n\xff"), "%20%25%40%5B%60%7B%3A%0A%FF");
    EXPECT_EQ(percentEncoded(""), "");
}

}  // namespace
}  // namespace zelk
