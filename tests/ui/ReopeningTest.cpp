// SPDX-License-Identifier: MIT
#include "ui/shell/NativeApplication.h"

#include <gtest/gtest.h>

namespace zelk {

TEST(Reopening, dockClickAsksForWindow) {
    Reopening reopening;
    EXPECT_FALSE(reopening.asksForWindow(Qt::ApplicationInactive));
    EXPECT_TRUE(reopening.asksForWindow(Qt::ApplicationActive));
    EXPECT_TRUE(reopening.asksForWindow(Qt::ApplicationActive)) << "clicked again while active";
}

TEST(Reopening, ownActivationAsksForNoWindow) {
    Reopening reopening;
    reopening.activating(Qt::ApplicationInactive);
    EXPECT_FALSE(reopening.asksForWindow(Qt::ApplicationActive));
    EXPECT_TRUE(reopening.asksForWindow(Qt::ApplicationActive)) << "only the next activation is our own";
}

TEST(Reopening, activatingWhileActiveExpectsNoChange) {
    Reopening reopening;
    reopening.activating(Qt::ApplicationActive);
    EXPECT_TRUE(reopening.asksForWindow(Qt::ApplicationActive));
}

}  // namespace zelk
