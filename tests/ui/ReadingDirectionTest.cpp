// SPDX-License-Identifier: MIT
#include "ui/theme/ReadingDirection.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "PseudoLanguage.h"
#include "fakes/RightToLeft.h"

namespace zelk {

TEST(ReadingDirection, isFromLeftToRightUnlessSaid) {
    const ReadingDirection reading;
    EXPECT_FALSE(readsFromRight());
    EXPECT_FALSE(reading.mirrored());
    EXPECT_EQ(reading.rightward(), 1);
}

TEST(ReadingDirection, followsTheApplication) {
    const ReadingDirection reading;
    const QSignalSpy changes(&reading, &ReadingDirection::changed);
    {
        const fakes::RightToLeft direction;
        EXPECT_TRUE(readsFromRight());
        EXPECT_TRUE(reading.mirrored());
        EXPECT_EQ(reading.rightward(), -1);
        EXPECT_EQ(changes.count(), 1);
    }
    EXPECT_FALSE(reading.mirrored());
    EXPECT_EQ(changes.count(), 2);
}

TEST(ReadingDirection, isSaidByTheTranslation) {
    tour::PseudoLanguage language(Qt::RightToLeft);
    QCoreApplication::installTranslator(&language);
    const bool mirrored = readsFromRight();
    QCoreApplication::removeTranslator(&language);
    EXPECT_TRUE(mirrored);
    EXPECT_FALSE(readsFromRight());
}

}  // namespace zelk
