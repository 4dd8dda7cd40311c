// SPDX-License-Identifier: MIT
#include "state/Isolation.h"

#include <gtest/gtest.h>

#include "fakes/RightToLeft.h"

namespace zelk {

TEST(Isolated, changesNothingFromLeftToRight) {
    for (const char* text : {"", "12 GB", "/usr/lib", "מסמכים"}) {
        EXPECT_EQ(isolated(QString::fromUtf8(text)), QString::fromUtf8(text));
        EXPECT_EQ(inReadingOrder(QString::fromUtf8(text)), QString::fromUtf8(text));
    }
}

TEST(Isolated, pathsRunFromLeftToRightAndOthersAsTheyBegin) {
    const fakes::RightToLeft direction;
    EXPECT_TRUE(isWrittenFromRight());
    for (const char* path : {"/", "/home/מסמכים", "/מסמכים/a", "~/Music", "…ocuments/מסמכים"})
        EXPECT_EQ(isolated(QString::fromUtf8(path)), u'\u2066' + QString::fromUtf8(path) + u'\u2069') << path;
    for (const char* text : {"Notes", "מסמכים", "1.2 GB", "~", "+3"})
        EXPECT_EQ(isolated(QString::fromUtf8(text)), u'\u2068' + QString::fromUtf8(text) + u'\u2069') << text;
    EXPECT_EQ(isolated({}), QString()) << "nothing stays nothing";
}

TEST(Isolated, endsWithTheTranslation) {
    { const fakes::RightToLeft direction; }
    EXPECT_FALSE(isWrittenFromRight());
}

TEST(Isolated, marksCanBeTakenOff) {
    EXPECT_EQ(withoutIsolation(QStringLiteral("\u2068a\u2069 \u2066b\u2067c\u2069")), QStringLiteral("a bc"));
    EXPECT_EQ(withoutIsolation(QStringLiteral("a b")), QStringLiteral("a b"));
}

TEST(Isolated, lineOfFiguresBeginsAtTheRight) {
    const fakes::RightToLeft direction;
    EXPECT_TRUE(inReadingOrder(isolated(QStringLiteral("3")) + QStringLiteral(" · ") + isolated(QStringLiteral("4 GB")))
                    .isRightToLeft());
    EXPECT_EQ(inReadingOrder({}), QString());
}

}  // namespace zelk
