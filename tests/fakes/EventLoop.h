// SPDX-License-Identifier: MIT
// The main thread's event loop, run for as long as a test needs it.
#pragma once

#include <QCoreApplication>
#include <QEventLoop>

namespace zelk {

/// Runs the event loop of the main thread until `condition` holds.
template <class Condition>
void runUntil(Condition condition) {
    while (!condition()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/// What has come to the main thread by now, and nothing that has yet to come.
inline void runWhatIsThere() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
}

}  // namespace zelk
