// SPDX-License-Identifier: MIT
// Where motion is not wanted nothing moves while time passes; where it is, the same time moves it.
#include "AnimationClock.h"
#include "ViewFixture.h"

namespace zelk {

namespace {

class ReducedMotion : public ViewFixture {
protected:
    Motion& motion() { return singleton<Motion>("Motion"); }

    /// How many of the pictures that are taken over two seconds differ from the first.
    int changesWhileTimePasses() {
        settle();
        const QImage first = window().grabWindow();
        int changed = 0;
        for (int step = 0; step < 20; ++step) {
            clock_.pass(100);
            settle();
            if (window().grabWindow() != first) ++changed;
        }
        return changed;
    }
    void expectMotionOnlyWhereItIsWanted(const char* component) {
        show(QStringLiteral("import QtQuick\nimport Zelk.App\nimport Zelk.Charts\nimport Zelk.Controls\nItem { %1 }")
                 .arg(QString::fromUtf8(component)),
             {300, 300});
        EXPECT_EQ(changesWhileTimePasses(), 0);
        motion().setReduced(false);
        EXPECT_GT(changesWhileTimePasses(), 10);
        motion().setReduced(true);
        EXPECT_EQ(changesWhileTimePasses(), 0);
    }

private:
    AnimationClock clock_;
};

}  // namespace

TEST_F(ReducedMotion, keepsTheProgressBarStill) {
    expectMotionOnlyWhereItIsWanted("ModuleProgressBar { tint: 'red' }");
}

TEST_F(ReducedMotion, keepsTheRingsOfTheOrbStill) {
    expectMotionOnlyWhereItIsWanted("ModuleOrb { symbol: 'scope'; tint: 'red'; pulsing: true }");
}

}  // namespace zelk
