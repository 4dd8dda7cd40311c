// SPDX-License-Identifier: MIT
#pragma once

#include <QMenuBar>
#include <memory>

namespace zelk {

class AppCommands;

/// Creates the global menu bar of a system that has one. It has no parent window, so that it stays when the last one is
/// closed. `commands` must outlive it. Needs a QApplication.
std::unique_ptr<QMenuBar> makeNativeMenuBar(AppCommands& commands);

}  // namespace zelk
