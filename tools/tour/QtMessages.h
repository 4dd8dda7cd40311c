// SPDX-License-Identifier: MIT
// Collects the warnings of Qt and the QML engine. They only print them, so a screen could be empty without anything
// failing: tests and tools that drive the window check here.
#pragma once

#include <QString>
#include <QStringList>

namespace zelk::tour {

/// From now on collects, and still prints, all warnings and errors of Qt and all messages of the QML engine. Drops
/// those that the offscreen platform prints about itself. Messages may come from any thread.
void keepQtMessages();

/// The messages since the last call, each starting with its file and line if known.
QStringList takeQtMessages();

}  // namespace zelk::tour
