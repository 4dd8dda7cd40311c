// SPDX-License-Identifier: MIT
// Disables features that macOS adds to every application, and activates the application there. Does nothing on other
// systems. Main thread.
#pragma once

namespace zelk {

/// Disables window tabs. Call before creating the first window.
void refuseWindowTabs();

/// Removes the Services menu. Call after creating the menu bar.
void removeServicesMenu();

/// Activates the application, whether or not it has a visible window. On other systems raising its windows does that.
void activateApplication();

}  // namespace zelk
