// SPDX-License-Identifier: MIT
// Runs the main thread's event loop as long as a test needs it.
#pragma once

#include <QCoreApplication>
#include <QEventLoop>

namespace zelk {

/// Runs the event loop of the main thread until `condition` holds.
template <class Condition>
void runUntil(Condition condition) {
    while (!condition()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/// Processes the events that have already arrived at the main thread, and no later ones.
inline void runWhatIsThere() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
}

}  // namespace zelk
