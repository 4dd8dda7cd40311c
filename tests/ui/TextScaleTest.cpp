// SPDX-License-Identifier: MIT
#include "ui/theme/TextScale.h"

#include <gtest/gtest.h>

#include "ui/theme/DesktopSettings.h"

namespace zelk {

namespace {

const DesktopKey factorKey{QStringLiteral("org.gnome.desktop.interface"), QStringLiteral("text-scaling-factor")};

}  // namespace

TEST(TextScale, isOneWithoutDesktopSetting) {
    const DesktopSettings desktop;
    EXPECT_EQ(TextScale(desktop).factor(), 1);
}

TEST(TextScale, followsDesktopUntilSetExplicitly) {
    DesktopSettings desktop;
    desktop.hear(factorKey, 1.25);
    TextScale text(desktop);
    EXPECT_EQ(text.factor(), 1.25) << "a setting received before it was created counts";
    desktop.hear(factorKey, 1.5);
    EXPECT_EQ(text.factor(), 1.5);
    text.setFactor(1.5);
    desktop.hear(factorKey, 1.0);
    EXPECT_EQ(text.factor(), 1.5);
}

TEST(TextScale, isClampedToSupportedRange) {
    DesktopSettings desktop;
    TextScale text(desktop);
    desktop.hear(factorKey, 3.0);
    EXPECT_EQ(text.factor(), TextScale::largest);
    desktop.hear(factorKey, 0.5);
    EXPECT_EQ(text.factor(), TextScale::smallest);
}

TEST(TextScale, notifiesOncePerChange) {
    DesktopSettings desktop;
    TextScale text(desktop);
    int changes = 0;
    QObject::connect(&text, &TextScale::factorChanged, &text, [&changes] { ++changes; });
    desktop.hear(factorKey, 1.5);
    desktop.hear(factorKey, 1.5);
    text.setFactor(1.5);
    EXPECT_EQ(changes, 1);
}

TEST(TextScale, detectsPlatformsWhoseToolkitScalesText) {
    EXPECT_TRUE(toolkitScalesTexts(QStringLiteral("xcb")));
    EXPECT_FALSE(toolkitScalesTexts(QStringLiteral("wayland")));
    EXPECT_FALSE(toolkitScalesTexts(QStringLiteral("offscreen")));
}

}  // namespace zelk
