// SPDX-License-Identifier: MIT
// What the system knows of the application as a whole, and what macOS adds to every application. Main thread.
#pragma once

#include <QString>
#include <Qt>
#include <optional>
#include <utility>

namespace zelk {

/// Information from the application bundle. Absent fields are not specified there.
struct BundleInfo {
    std::optional<QString> name;
    std::optional<QString> version;
    std::optional<QString> build;
};

/// The information of the bundle that runs, or that of the build if there is none.
BundleInfo applicationBundle();

/// Disables the window tabs of macOS. Call before creating the first window.
void refuseWindowTabs();

/// Removes the Services menu of macOS. Call after creating the menu bar.
void removeServicesMenu();

/// Activates the application on macOS, whether or not it has a visible window. On other systems raising its windows
/// does that.
void activateApplication();

/// Tells a click on the Dock icon, which asks for a window, from an activation that the application requested itself.
/// Qt reports both as the same state change.
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
