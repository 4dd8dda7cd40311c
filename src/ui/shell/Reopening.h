// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>
#include <utility>

namespace zelk {

/// Tells a press on the icon in the dock, which asks for a window, from the activation that the application asked for
/// itself, which does not: the toolkit tells both as the same change of state. Main thread.
class Reopening {
public:
    /// The application is about to activate itself. One that is active already has no change to come.
    void activating(Qt::ApplicationState now) { ours_ = now != Qt::ApplicationActive; }

    /// Whether this state, which has just come, asks for a window.
    bool asksForWindow(Qt::ApplicationState state) {
        return state == Qt::ApplicationActive && !std::exchange(ours_, false);
    }

private:
    bool ours_ = false;
};

}  // namespace zelk
