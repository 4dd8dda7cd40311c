// SPDX-License-Identifier: MIT
#include "ui/theme/Motion.h"

#include <gtest/gtest.h>

#include <QVariant>
#include <vector>

#include "ui/theme/DesktopMotion.h"

namespace zelk {

namespace {

const QString gnome = QStringLiteral("org.gnome.desktop.interface");
const QString animations = QStringLiteral("enable-animations");
const QString common = QStringLiteral("org.freedesktop.appearance");
const QString reduced = QStringLiteral("reduced-motion");

}  // namespace

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

TEST(Motion, followsTheDesktopUntilToldOtherwise) {
    Motion motion;
    auto* desktop = motion.findChild<DesktopMotion*>();
    ASSERT_NE(desktop, nullptr);
    emit desktop->reducedChanged(true);
    EXPECT_TRUE(motion.reduced());
    emit desktop->reducedChanged(false);
    EXPECT_FALSE(motion.reduced());
    motion.setReduced(true);
    emit desktop->reducedChanged(false);
    EXPECT_TRUE(motion.reduced());
}

TEST(DesktopMotion, readsBothSettingsOfThePortal) {
    EXPECT_EQ(DesktopMotion::reducedFrom(gnome, animations, true), false);
    EXPECT_EQ(DesktopMotion::reducedFrom(gnome, animations, false), true);
    EXPECT_EQ(DesktopMotion::reducedFrom(common, reduced, 1U), true);
    EXPECT_EQ(DesktopMotion::reducedFrom(common, reduced, 0U), false);
}

TEST(DesktopMotion, isReducedWhereEitherSettingSaysSo) {
    DesktopMotion desktop;
    std::vector<bool> said;
    QObject::connect(&desktop, &DesktopMotion::reducedChanged, &desktop, [&](bool wish) { said.push_back(wish); });
    desktop.hear(common, reduced, 1U);
    EXPECT_EQ(said, (std::vector<bool>{true}));
    desktop.hear(gnome, animations, true);
    EXPECT_EQ(said, (std::vector<bool>{true})) << "the last answer must not win";
    desktop.hear(gnome, animations, false);
    desktop.hear(common, reduced, 0U);
    EXPECT_EQ(said, (std::vector<bool>{true}));
    desktop.hear(gnome, animations, true);
    EXPECT_EQ(said, (std::vector<bool>{true, false}));
}

TEST(DesktopMotion, makesNothingOfAnythingElse) {
    EXPECT_EQ(DesktopMotion::reducedFrom("org.gnome.desktop.interface", "enable-animations", "no"), std::nullopt);
    EXPECT_EQ(DesktopMotion::reducedFrom("org.gnome.desktop.interface", "clock-format", true), std::nullopt);
    EXPECT_EQ(DesktopMotion::reducedFrom("org.freedesktop.appearance", "reduced-motion", true), std::nullopt);
    EXPECT_EQ(DesktopMotion::reducedFrom("", "", QVariant()), std::nullopt);
}

}  // namespace zelk
