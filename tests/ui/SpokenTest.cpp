// SPDX-License-Identifier: MIT
#include "ui/controls/Spoken.h"

#include <gtest/gtest.h>

namespace zelk {

TEST(Spoken, joinsTextsWithCommas) {
    EXPECT_EQ(Spoken::joined({QStringLiteral("Large Files"), QStringLiteral("12 GB"), QStringLiteral("40 items")}),
              QStringLiteral("Large Files, 12 GB, 40 items"));
}

TEST(Spoken, skipsEmptyTexts) {
    EXPECT_EQ(Spoken::joined({QStringLiteral(""), QStringLiteral("12 GB"), QString(), QStringLiteral("40 items"),
                              QStringLiteral("")}),
              QStringLiteral("12 GB, 40 items"));
}

TEST(Spoken, isEmptyWithoutTexts) {
    EXPECT_EQ(Spoken::joined({}), QString());
    EXPECT_EQ(Spoken::joined({QStringLiteral(""), QStringLiteral("")}), QString());
}

TEST(Spoken, saysBytesAsTheyAreWritten) {
    EXPECT_EQ(Spoken::bytes(12e9), QStringLiteral("12 GB"));
    EXPECT_EQ(Spoken::bytes(0), QStringLiteral("0 bytes"));
}

}  // namespace zelk
