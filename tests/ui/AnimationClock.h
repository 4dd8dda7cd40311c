// SPDX-License-Identifier: MIT
#pragma once

#include <QAnimationDriver>

namespace zelk {

/// The time of all animations of this thread: while it is there, it stands still until a test moves it.
class AnimationClock : public QAnimationDriver {
public:
    AnimationClock() { install(); }
    ~AnimationClock() override { uninstall(); }
    AnimationClock(const AnimationClock&) = delete;
    AnimationClock& operator=(const AnimationClock&) = delete;

    qint64 elapsed() const override { return now_; }
    void pass(int milliseconds) {
        now_ += milliseconds;
        advanceAnimation();
    }

private:
    qint64 now_ = 0;
};

}  // namespace zelk
