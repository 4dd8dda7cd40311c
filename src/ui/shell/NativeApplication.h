// SPDX-License-Identifier: MIT
// What macOS adds to every application by itself and Zelk does without. Nothing to do elsewhere. Main thread.
#pragma once

namespace zelk {

/// No window of ours becomes a tab of another. Before the first window.
void refuseWindowTabs();

/// Nothing here is for another application to work on. Behind the menu bar.
void removeServicesMenu();

}  // namespace zelk
