// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>
#include <utility>

namespace zelk {

/// Tells a click on the Dock icon, which asks for a window, from an activation that the application requested itself.
/// Qt reports both as the same state change. Main thread.
class Reopening {
public:
    /// Call before the application activates itself. If it is active already, no state change follows.
    void activating(Qt::ApplicationState now) { ours_ = now != Qt::ApplicationActive; }

    /// Whether this new state comes from the Dock and asks for a window.
    bool asksForWindow(Qt::ApplicationState state) {
        return state == Qt::ApplicationActive && !std::exchange(ours_, false);
    }

private:
    bool ours_ = false;
};

}  // namespace zelk
