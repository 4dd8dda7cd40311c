// SPDX-License-Identifier: MIT
#include "ui/controls/AccessibleText.h"

#include <gtest/gtest.h>

namespace zelk {

TEST(AccessibleText, joinsTextsWithCommas) {
    EXPECT_EQ(
        AccessibleText::joined({QStringLiteral("Large Files"), QStringLiteral("12 GB"), QStringLiteral("40 items")}),
        QStringLiteral("Large Files, 12 GB, 40 items"));
}

TEST(AccessibleText, skipsEmptyTexts) {
    EXPECT_EQ(AccessibleText::joined({QStringLiteral(""), QStringLiteral("12 GB"), QString(),
                                      QStringLiteral("40 items"), QStringLiteral("")}),
              QStringLiteral("12 GB, 40 items"));
}

TEST(AccessibleText, isEmptyWithoutTexts) {
    EXPECT_EQ(AccessibleText::joined({}), QString());
    EXPECT_EQ(AccessibleText::joined({QStringLiteral(""), QStringLiteral("")}), QString());
}

TEST(AccessibleText, bytesMatchVisibleFormat) {
    EXPECT_EQ(AccessibleText::bytes(12e9), QStringLiteral("12 GB"));
    EXPECT_EQ(AccessibleText::bytes(0), QStringLiteral("0 bytes"));
}

}  // namespace zelk
