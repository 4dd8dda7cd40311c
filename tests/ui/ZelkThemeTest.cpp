// SPDX-License-Identifier: MIT
#include "ui/theme/ZelkTheme.h"

#include <gtest/gtest.h>

#include <array>

namespace zelk {

namespace {

/// Red, green and blue from 0 to 255, and the opacity in percent.
using Shade = std::array<int, 4>;

Shade shade(const QColor& color) {
    return {color.red(), color.green(), color.blue(), qRound(color.alphaF() * 100)};
}

}  // namespace

TEST(ZelkTheme, darkHasElevenValues) {
    const ZelkTheme& theme = ZelkTheme::dark();
    EXPECT_TRUE(theme.isDark);
    EXPECT_EQ(shade(theme.ground), (Shade{12, 11, 18, 100}));
    EXPECT_EQ(shade(theme.groundHi), (Shade{22, 21, 31, 100}));
    EXPECT_EQ(shade(theme.surface), (Shade{27, 26, 38, 100}));
    EXPECT_EQ(shade(theme.surfaceHi), (Shade{38, 36, 51, 100}));
    EXPECT_EQ(shade(theme.ink), (Shade{246, 244, 238, 100}));
    EXPECT_EQ(shade(theme.inkSoft), (Shade{152, 146, 168, 100}));
    EXPECT_EQ(shade(theme.hairline), (Shade{255, 255, 255, 8}));
    EXPECT_EQ(shade(theme.accent), (Shade{245, 166, 35, 100}));
    EXPECT_EQ(shade(theme.accentSoft), (Shade{255, 210, 122, 100}));
    EXPECT_EQ(shade(theme.alert), (Shade{255, 90, 77, 100}));
}

TEST(ZelkTheme, lightHasElevenValues) {
    const ZelkTheme& theme = ZelkTheme::light();
    EXPECT_FALSE(theme.isDark);
    EXPECT_EQ(shade(theme.ground), (Shade{239, 237, 243, 100}));
    EXPECT_EQ(shade(theme.groundHi), (Shade{248, 247, 251, 100}));
    EXPECT_EQ(shade(theme.surface), (Shade{255, 255, 255, 100}));
    EXPECT_EQ(shade(theme.surfaceHi), (Shade{251, 250, 254, 100}));
    EXPECT_EQ(shade(theme.ink), (Shade{23, 22, 31, 100}));
    EXPECT_EQ(shade(theme.inkSoft), (Shade{107, 102, 120, 100}));
    EXPECT_EQ(shade(theme.hairline), (Shade{0, 0, 0, 8}));
    EXPECT_EQ(shade(theme.accent), (Shade{224, 133, 26, 100}));
    EXPECT_EQ(shade(theme.accentSoft), (Shade{246, 197, 106, 100}));
    EXPECT_EQ(shade(theme.alert), (Shade{216, 64, 46, 100}));
}

TEST(ZelkTheme, accentGradientHasTwoColours) {
    EXPECT_EQ(shade(AccentGradient::from()), (Shade{255, 194, 75, 100}));
    EXPECT_EQ(shade(AccentGradient::to()), (Shade{240, 133, 28, 100}));
}

TEST(Mix, interpolatesFromBaseToOther) {
    const QColor base(100, 0, 200);
    const QColor other(200, 50, 0);
    EXPECT_EQ(shade(mix(base, other, 0)), shade(base));
    EXPECT_EQ(shade(mix(base, other, 1)), shade(other));
    EXPECT_EQ(shade(mix(base, other, 0.25)), (Shade{125, 13, 150, 100}));
}

TEST(Mix, clampsFraction) {
    const QColor base(100, 0, 200);
    const QColor other(200, 50, 0);
    EXPECT_EQ(shade(mix(base, other, 2)), shade(other));
    EXPECT_EQ(shade(mix(base, other, -1)), shade(base));
}

TEST(Mix, resultIsOpaque) {
    EXPECT_EQ(shade(mix(QColor(100, 100, 100, 0), QColor(200, 200, 200, 20), 0.5)), (Shade{150, 150, 150, 100}));
}

TEST(Mix, treatsInvalidColourAsBlack) {
    EXPECT_EQ(shade(mix(QColor(), QColor(200, 100, 50), 0.5)), (Shade{100, 50, 25, 100}));
    EXPECT_EQ(shade(mix(QColor(200, 100, 50), QColor(), 1)), (Shade{0, 0, 0, 100}));
}

TEST(Mix, convertsOtherColourModels) {
    EXPECT_EQ(shade(mix(QColor::fromHsv(0, 255, 255), QColor::fromCmyk(255, 0, 255, 0), 0)), (Shade{255, 0, 0, 100}));
    EXPECT_EQ(shade(mix(QColor::fromHsv(0, 255, 255), QColor::fromCmyk(255, 0, 255, 0), 1)), (Shade{0, 255, 0, 100}));
}

}  // namespace zelk
