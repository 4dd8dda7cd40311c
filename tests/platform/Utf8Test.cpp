// SPDX-License-Identifier: MIT
#include "platform/Utf8.h"

#include <gtest/gtest.h>

#include <string>

namespace zelk {
namespace {

TEST(Utf8, acceptsCharactersOfEveryLength) {
    for (const std::string_view text : {"", "plain", "\x7f", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xEF\xBF\xBF",
                                        "\xED\x9F\xBF", "\xEE\x80\x80", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF", "aé€😀"})
        EXPECT_TRUE(isUtf8(text)) << text;
    EXPECT_TRUE(isUtf8(std::string_view("a\0b", 3)));
}

TEST(Utf8, rejectsOverlongSurrogateAndOutOfRangeForms) {
    for (const std::string_view text : {"\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", "\xED\xA0\x80",
                                        "\xED\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFE", "\xFF"})
        EXPECT_FALSE(isUtf8(text));
}

TEST(Utf8, rejectsLoneAndMissingContinuations) {
    for (const std::string_view text : {"\x80", "a\xBF", "\xC3", "\xE2\x82", "\xF0\x9F\x98",
                                        "\xC3"
                                        "a",
                                        "\xE2\x82"
                                        "a",
                                        "\xE2"
                                        "a\x82",
                                        "\xF0\x9F\x98"
                                        "a"})
        EXPECT_FALSE(isUtf8(text));
}

}  // namespace
}  // namespace zelk
