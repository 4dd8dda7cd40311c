// SPDX-License-Identifier: MIT
#include "cli/VisibleText.h"

#include <gmock/gmock.h>

#include <clocale>

#include "platform/Utf8.h"

namespace zelk::cli {
namespace {

TEST(VisibleText, keepsWhatCanBeSeen) {
    for (const std::string text :
         {"", "plain text", "back\\slash \"quoted\"", "Grüße", "日本語", "😀", "a\xCC\x81", "~\xC2\xA0"})
        EXPECT_EQ(visibleText(text), text);
}

TEST(VisibleText, keepsTheFirstAndLastCharactersOfEveryLength) {
    for (const std::string text : {" ", "~", "\u00A0", "\u07FF", "\u0800", "\u0FFF", "\u1000", "\uFFFD", "\U00010000",
                                   "\U0003FFFF", "\U00040000", "\U0010FFFF"})
        EXPECT_EQ(visibleText(text), text);
}

TEST(VisibleText, spellsControlCharacters) {
    EXPECT_EQ(visibleText("a\nb\tc\rd"), "a\\nb\\tc\\x0Dd");
    EXPECT_EQ(visibleText(std::string_view("\0\x1B[31m\x7F", 7)), "\\x00\\x1B[31m\\x7F");
    EXPECT_EQ(visibleText("\x1F "), "\\x1F ");
    EXPECT_EQ(visibleText("\xC2\x80\xC2\x9B\xC2\x9F"), "\\u0080\\u009B\\u009F");
}

TEST(VisibleText, spellsWhatBreaksLinesOrTurnsTheDirection) {
    EXPECT_EQ(visibleText("\u2028\u2029"), "\\u2028\\u2029");
    EXPECT_EQ(visibleText("\u061C\u200E\u200F"), "\\u061C\\u200E\\u200F");
    EXPECT_EQ(visibleText("\u202A\u202E\u2066\u2069"), "\\u202A\\u202E\\u2066\\u2069");
    for (const std::string text : {"\u061B", "\u200D", "\u2010", "\u2027", "\u202F", "\u2065", "\u206A"})
        EXPECT_EQ(visibleText(text), text);
}

TEST(VisibleText, spellsBytesThatAreNoUtf8) {
    EXPECT_EQ(visibleText("\xFF"), "\\xFF");
    EXPECT_EQ(visibleText("a\x80z"), "a\\x80z");
    EXPECT_EQ(visibleText("\xE6\x97"), "\\xE6\\x97");           // cut off
    EXPECT_EQ(visibleText("\xC3("), "\\xC3(");                  // no continuation
    EXPECT_EQ(visibleText("\xC0\xAF"), "\\xC0\\xAF");           // overlong
    EXPECT_EQ(visibleText("\xED\xA0\x80"), "\\xED\\xA0\\x80");  // a surrogate
    EXPECT_EQ(visibleText("\xF5\x80\x80\x80"), "\\xF5\\x80\\x80\\x80");
}

TEST(VisibleText, ofAnyBytesIsUtf8WithoutControlCharacters) {
    for (unsigned first = 0; first < 256; ++first) {
        for (unsigned second = 0; second < 256; ++second) {
            const std::string bytes{static_cast<char>(first), static_cast<char>(second)};
            const std::string text = visibleText(bytes);
            ASSERT_TRUE(isUtf8(text));
            for (const char c : text) ASSERT_TRUE(static_cast<unsigned char>(c) >= 0x20 && c != 0x7F);
        }
    }
}

class Columns : public testing::Test {
protected:
    Columns() { EXPECT_NE(std::setlocale(LC_CTYPE, "C.UTF-8"), nullptr); }
    ~Columns() override { std::setlocale(LC_CTYPE, "C"); }
};

TEST_F(Columns, areThoseOfTheTerminal) {
    EXPECT_EQ(columnsOf(""), 0U);
    EXPECT_EQ(columnsOf("abc"), 3U);
    EXPECT_EQ(columnsOf("Grüße"), 5U);
    EXPECT_EQ(columnsOf("日本語"), 6U);
    EXPECT_EQ(columnsOf("a\xCC\x81"), 1U);  // an accent of its own
    EXPECT_EQ(columnsOf("\xFF"), 1U);
    EXPECT_EQ(columnsOf("\xF3\xB0\x80\x80x"), 2U);  // for private use
}

TEST_F(Columns, limitTextFromItsEnd) {
    EXPECT_EQ(endWithin("/usr/share", 10), "/usr/share");
    EXPECT_EQ(endWithin("/usr/share", 9), ".../share");
    EXPECT_EQ(endWithin("/usr/share", 4), "...e");
    EXPECT_EQ(endWithin("/usr/share", 3), "...");
    EXPECT_EQ(endWithin("/usr/share", 2), "..");
    EXPECT_EQ(endWithin("/usr/share", 0), "");
    EXPECT_EQ(endWithin("", 0), "");
}

TEST_F(Columns, areNeverExceededByAWideCharacter) {
    EXPECT_EQ(endWithin("日本語", 6), "日本語");
    EXPECT_EQ(endWithin("日本語", 5), "...語");
    EXPECT_EQ(endWithin("日本語", 4), "...");
    EXPECT_EQ(columnsOf(endWithin("a日本語本日a語", 8)), 8U);
}

TEST_F(Columns, areNotCutBetweenACharacterAndItsAccent) {
    EXPECT_EQ(endWithin("aaae\xCC\x81z", 4), "...z");
    EXPECT_EQ(endWithin("aaaaae\xCC\x81z", 5), "...e\xCC\x81z");
}

}  // namespace
}  // namespace zelk::cli
