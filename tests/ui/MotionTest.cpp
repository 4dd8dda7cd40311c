// SPDX-License-Identifier: MIT
#include "ui/theme/Motion.h"

#include <gtest/gtest.h>

#include "ui/theme/DesktopSettings.h"

namespace zelk {

TEST(Motion, durationsAreZeroWhenReduced) {
    Motion motion;
    motion.setReduced(false);
    EXPECT_GT(motion.quick(), 0);
    EXPECT_GT(motion.gentle(), 0);
    motion.setReduced(true);
    EXPECT_EQ(motion.quick(), 0);
    EXPECT_EQ(motion.gentle(), 0);
}

TEST(Motion, turnTakes1400Milliseconds) {
    EXPECT_EQ(Motion().turn(), 1400);
}

TEST(Motion, numberAnimationsHaveToldDurations) {
    Motion motion;
    motion.setReduced(false);
    EXPECT_EQ(motion.count(), 500);
    EXPECT_EQ(motion.follow(), 250);
    EXPECT_EQ(motion.reveal(), 900);
    EXPECT_EQ(motion.readable(), 80) << "twelve texts a second";
    motion.setReduced(true);
    EXPECT_EQ(motion.count(), 0);
    EXPECT_EQ(motion.follow(), 0);
    EXPECT_EQ(motion.reveal(), 0);
}

TEST(Motion, notifiesOncePerChange) {
    Motion motion;
    motion.setReduced(false);
    int changes = 0;
    QObject::connect(&motion, &Motion::changed, &motion, [&changes] { ++changes; });
    motion.setReduced(true);
    motion.setReduced(true);
    EXPECT_EQ(changes, 1);
}

TEST(Motion, followsDesktopUntilSetExplicitly) {
    const DesktopKey key{QStringLiteral("org.freedesktop.appearance"), QStringLiteral("reduced-motion")};
    DesktopSettings desktop;
    desktop.hear(key, 1U);
    Motion motion(desktop);
    EXPECT_TRUE(motion.reduced()) << "a setting received before it was created counts";
    desktop.hear(key, 0U);
    EXPECT_FALSE(motion.reduced());
    motion.setReduced(true);
    desktop.hear(key, 1U);
    desktop.hear(key, 0U);
    EXPECT_TRUE(motion.reduced());
}

}  // namespace zelk
