// SPDX-License-Identifier: MIT
#include "state/TextFinder.h"

#include <gtest/gtest.h>

namespace zelk {
namespace {

bool finds(const char* wanted, const std::string& text) {
    return TextFinder(QString::fromUtf8(wanted)).isIn(text);
}

TEST(TextFinder, findsTextAnywhereInAnyCase) {
    EXPECT_TRUE(finds("Chrome", "Google Chrome"));
    EXPECT_TRUE(finds("arc", "Archive Utility"));
    EXPECT_TRUE(finds("EDGE", "Microsoft Edge"));
    EXPECT_TRUE(finds("Web", "Web"));
    EXPECT_FALSE(finds("GNOME Web", "Web"));
    EXPECT_FALSE(finds("Chrome", "Chromium Web Browser"));
    EXPECT_FALSE(finds("Safari", ""));
}

TEST(TextFinder, knowsLettersHoweverTheyAreSpelled) {
    EXPECT_TRUE(finds("Äpfel", "die A\u0308PFEL"));
    EXPECT_TRUE(finds("a\u0308pfel", "Äpfel"));
}

}  // namespace
}  // namespace zelk
