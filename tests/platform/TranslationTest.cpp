// SPDX-License-Identifier: MIT
#include "platform/Translation.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "platform/posix/FailureText.h"

namespace zelk {
namespace {

std::string inCapitals(const char* context, const char* text) {
    std::string capitals = std::string(context) + ":";
    for (const char* c = text; *c != '\0'; ++c)
        capitals += *c >= 'a' && *c <= 'z' ? static_cast<char>(*c - 'a' + 'A') : *c;
    return capitals;
}

class TranslationInUse : public testing::Test {
protected:
    ~TranslationInUse() override { setTranslation(nullptr); }
};

TEST_F(TranslationInUse, leavesTextsAsTheyAreWithoutOne) {
    EXPECT_EQ(translated("Failure", "the Trash is in it"), "the Trash is in it");
    EXPECT_STREQ(ZELK_TEXT("Failure", "the Trash is in it"), "the Trash is in it");
}

TEST_F(TranslationInUse, asksIt) {
    setTranslation(inCapitals);
    EXPECT_EQ(translated("Failure", "the Trash is in it"), "Failure:THE TRASH IS IN IT");
    EXPECT_EQ(translated("Failure", ""), "") << "which has a translation of another kind";
    EXPECT_EQ(failureText("“%1” is gone: %2", "notes.txt", "why"), "Failure:“notes.txt” IS GONE: why");
}

TEST(Filled, takesTheWordsInTheirOrder) {
    EXPECT_EQ(filled("%2 of %1, %1", {"a", "b"}), "b of a, a");
    EXPECT_EQ(filled("nothing", {}), "nothing");
}

TEST(Filled, leavesOtherPercentSigns) {
    EXPECT_EQ(filled("100% of %1 %2 %", {"a"}), "100% of a %2 %");
}

TEST(Filled, takesNoPlaceholderFromAWord) {
    EXPECT_EQ(filled("“%1”: %2", {"%2 %1", "why"}), "“%2 %1”: why");
}

}  // namespace
}  // namespace zelk
