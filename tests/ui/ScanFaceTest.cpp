// SPDX-License-Identifier: MIT
#include "ui/charts/ScanFace.h"

#include <gtest/gtest.h>

namespace zelk {

namespace {

const QLocale unitedStates(QLocale::English, QLocale::UnitedStates);

}  // namespace

TEST(ScanFace, idleAsksToScan) {
    const ScanFace face = ScanFace::idle();
    EXPECT_EQ(face.symbol, QStringLiteral("scope"));
    EXPECT_EQ(face.symbolSize, 34);
    EXPECT_EQ(face.title, QStringLiteral("Scan"));
    EXPECT_EQ(face.titleSize, 20);
    EXPECT_EQ(face.caption, QStringLiteral("your whole Mac"));
    EXPECT_EQ(face.captionSize, 11);
    EXPECT_TRUE(face.hint.isEmpty());
}

TEST(ScanFace, scanningShowsTheBytes) {
    const ScanFace face = ScanFace::scanning(1'300'000, unitedStates);
    EXPECT_TRUE(face.symbol.isEmpty());
    EXPECT_EQ(face.title, QStringLiteral("1.3 MB"));
    EXPECT_EQ(face.titleSize, 26);
    EXPECT_EQ(face.caption, QStringLiteral("scanning…"));
    EXPECT_EQ(face.captionSize, 11);
    EXPECT_TRUE(face.hint.isEmpty());
}

TEST(ScanFace, finishedShowsWhatIsRecoverable) {
    const ScanFace face = ScanFace::finished(41'860'000'000, unitedStates);
    EXPECT_TRUE(face.symbol.isEmpty());
    EXPECT_EQ(face.title, QStringLiteral("41.86 GB"));
    EXPECT_EQ(face.titleSize, 28);
    EXPECT_EQ(face.caption, QStringLiteral("recoverable"));
    EXPECT_EQ(face.captionSize, 11);
    EXPECT_EQ(face.hint, QStringLiteral("re-run"));
    EXPECT_EQ(face.hintSize, 10);
}

TEST(ScanFace, ofZeroBytesShowsANumberAndAUnit) {
    EXPECT_EQ(ScanFace::scanning(0, unitedStates).title, QStringLiteral("0 bytes"));
    EXPECT_EQ(ScanFace::finished(0, unitedStates).title, QStringLiteral("0 bytes"));
}

}  // namespace zelk
