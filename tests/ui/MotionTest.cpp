// SPDX-License-Identifier: MIT
#include "ui/theme/Motion.h"

#include <gtest/gtest.h>

#include <QVariant>

#include "ui/theme/DesktopMotion.h"

namespace zelk {

TEST(Motion, takesNoTimeWhenReduced) {
    Motion motion;
    motion.setReduced(false);
    EXPECT_GT(motion.quick(), 0);
    EXPECT_GT(motion.gentle(), 0);
    motion.setReduced(true);
    EXPECT_EQ(motion.quick(), 0);
    EXPECT_EQ(motion.gentle(), 0);
}

TEST(Motion, turnsOnceIn1400Milliseconds) {
    EXPECT_EQ(Motion().turn(), 1400);
}

TEST(Motion, tellsAChangeOnce) {
    Motion motion;
    motion.setReduced(false);
    int changes = 0;
    QObject::connect(&motion, &Motion::changed, &motion, [&changes] { ++changes; });
    motion.setReduced(true);
    motion.setReduced(true);
    EXPECT_EQ(changes, 1);
}

TEST(DesktopMotion, readsBothSettingsOfThePortal) {
    const QString gnome = QStringLiteral("org.gnome.desktop.interface");
    const QString animations = QStringLiteral("enable-animations");
    const QString common = QStringLiteral("org.freedesktop.appearance");
    const QString reduced = QStringLiteral("reduced-motion");
    EXPECT_EQ(DesktopMotion::reducedFrom(gnome, animations, true), false);
    EXPECT_EQ(DesktopMotion::reducedFrom(gnome, animations, false), true);
    EXPECT_EQ(DesktopMotion::reducedFrom(common, reduced, 1U), true);
    EXPECT_EQ(DesktopMotion::reducedFrom(common, reduced, 0U), false);
}

TEST(DesktopMotion, makesNothingOfAnythingElse) {
    EXPECT_EQ(DesktopMotion::reducedFrom("org.gnome.desktop.interface", "enable-animations", "no"), std::nullopt);
    EXPECT_EQ(DesktopMotion::reducedFrom("org.gnome.desktop.interface", "clock-format", true), std::nullopt);
    EXPECT_EQ(DesktopMotion::reducedFrom("org.freedesktop.appearance", "reduced-motion", true), std::nullopt);
    EXPECT_EQ(DesktopMotion::reducedFrom("", "", QVariant()), std::nullopt);
}

}  // namespace zelk
