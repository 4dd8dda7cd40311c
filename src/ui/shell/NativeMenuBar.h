// SPDX-License-Identifier: MIT
#pragma once

#include <QMenuBar>
#include <memory>

namespace zelk {

class AppCommands;

/// The menus for a system that has a menu bar of its own. It belongs to no window, so it stays when the last one is
/// closed. `commands` must outlive it. With a QApplication.
std::unique_ptr<QMenuBar> makeNativeMenuBar(AppCommands& commands);

}  // namespace zelk
