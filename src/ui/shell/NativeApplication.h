// SPDX-License-Identifier: MIT
// What macOS adds to every application by itself and Zelk does without, and how an application comes forward there.
// Nothing to do elsewhere. Main thread.
#pragma once

namespace zelk {

/// No window of ours becomes a tab of another. Before the first window.
void refuseWindowTabs();

/// Nothing here is for another application to work on. Behind the menu bar.
void removeServicesMenu();

/// Puts this application before all others, whether or not it has a window to show. Elsewhere its windows do that.
void activateApplication();

}  // namespace zelk
