// SPDX-License-Identifier: MIT
#include "ui/shell/Reopening.h"

#include <gtest/gtest.h>

namespace zelk {

TEST(Reopening, aPressInTheDockAsksForAWindow) {
    Reopening reopening;
    EXPECT_FALSE(reopening.asksForWindow(Qt::ApplicationInactive));
    EXPECT_TRUE(reopening.asksForWindow(Qt::ApplicationActive));
    EXPECT_TRUE(reopening.asksForWindow(Qt::ApplicationActive)) << "pressed again while it is active";
}

TEST(Reopening, anActivationOfOursAsksForNone) {
    Reopening reopening;
    reopening.activating(Qt::ApplicationInactive);
    EXPECT_FALSE(reopening.asksForWindow(Qt::ApplicationActive));
    EXPECT_TRUE(reopening.asksForWindow(Qt::ApplicationActive)) << "what comes later is somebody else's";
}

TEST(Reopening, whatIsActiveAlreadyHasNoChangeToCome) {
    Reopening reopening;
    reopening.activating(Qt::ApplicationActive);
    EXPECT_TRUE(reopening.asksForWindow(Qt::ApplicationActive));
}

}  // namespace zelk
