// SPDX-License-Identifier: MIT
#include "ui/theme/DesktopSettings.h"

#include <gtest/gtest.h>

#include <QVariant>
#include <limits>
#include <vector>

namespace zelk {

namespace {

const QString gnome = QStringLiteral("org.gnome.desktop.interface");
const QString common = QStringLiteral("org.freedesktop.appearance");
const DesktopKey animations{gnome, QStringLiteral("enable-animations")};
const DesktopKey reduced{common, QStringLiteral("reduced-motion")};
const DesktopKey scheme{common, QStringLiteral("color-scheme")};
const DesktopKey factor{gnome, QStringLiteral("text-scaling-factor")};

}  // namespace

TEST(DesktopSettings, readsBothMotionSettings) {
    EXPECT_EQ(reducedMotionFrom(animations, true), false);
    EXPECT_EQ(reducedMotionFrom(animations, false), true);
    EXPECT_EQ(reducedMotionFrom(reduced, 1U), true);
    EXPECT_EQ(reducedMotionFrom(reduced, 0U), false);
}

TEST(DesktopSettings, readsColorScheme) {
    EXPECT_EQ(schemeFrom(scheme, 0U), DesktopScheme::untold);
    EXPECT_EQ(schemeFrom(scheme, 1U), DesktopScheme::dark);
    EXPECT_EQ(schemeFrom(scheme, 2U), DesktopScheme::light);
    EXPECT_EQ(schemeFrom(scheme, 3U), DesktopScheme::untold);
}

TEST(DesktopSettings, readsTextScalingFactor) {
    EXPECT_EQ(textFactorFrom(factor, 1.25), 1.25);
    EXPECT_EQ(textFactorFrom(factor, 0.0), std::nullopt);
    EXPECT_EQ(textFactorFrom(factor, -1.0), std::nullopt);
    EXPECT_EQ(textFactorFrom(factor, std::numeric_limits<double>::quiet_NaN()), std::nullopt);
}

TEST(DesktopSettings, rejectsUnknownKeysAndTypes) {
    const DesktopKey clock{gnome, QStringLiteral("clock-format")};
    EXPECT_EQ(reducedMotionFrom(animations, "no"), std::nullopt);
    EXPECT_EQ(reducedMotionFrom(reduced, true), std::nullopt);
    EXPECT_EQ(reducedMotionFrom(clock, true), std::nullopt);
    EXPECT_EQ(reducedMotionFrom({}, QVariant()), std::nullopt);
    EXPECT_EQ(schemeFrom(scheme, true), std::nullopt);
    EXPECT_EQ(schemeFrom(reduced, 1U), std::nullopt);
    EXPECT_EQ(textFactorFrom(factor, 1U), std::nullopt);
    EXPECT_EQ(textFactorFrom(clock, 1.5), std::nullopt);
}

TEST(DesktopSettings, reducesMotionIfEitherSettingAsksForIt) {
    DesktopSettings desktop;
    std::vector<bool> reported;
    QObject::connect(&desktop, &DesktopSettings::reducedMotionChanged, &desktop,
                     [&] { reported.push_back(desktop.reducedMotion()); });
    desktop.hear(reduced, 1U);
    EXPECT_EQ(reported, (std::vector<bool>{true}));
    desktop.hear(animations, true);
    EXPECT_EQ(reported, (std::vector<bool>{true})) << "the other setting still asks for it";
    desktop.hear(animations, false);
    desktop.hear(reduced, 0U);
    EXPECT_EQ(reported, (std::vector<bool>{true}));
    desktop.hear(animations, true);
    EXPECT_EQ(reported, (std::vector<bool>{true, false}));
}

TEST(DesktopSettings, signalsEachChangeOnce) {
    DesktopSettings desktop;
    int schemes = 0;
    int factors = 0;
    QObject::connect(&desktop, &DesktopSettings::schemeChanged, &desktop, [&] { ++schemes; });
    QObject::connect(&desktop, &DesktopSettings::textFactorChanged, &desktop, [&] { ++factors; });
    desktop.hear(scheme, 1U);
    desktop.hear(scheme, 1U);
    EXPECT_EQ(schemes, 1);
    EXPECT_EQ(factors, 0);
    desktop.hear(factor, 1.5);
    desktop.hear(factor, 1.5);
    EXPECT_EQ(schemes, 1);
    EXPECT_EQ(factors, 1);
}

}  // namespace zelk
