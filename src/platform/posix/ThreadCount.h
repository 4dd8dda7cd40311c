// SPDX-License-Identifier: MIT
#pragma once

namespace zelk {

/// Waits up to `seconds` until every thread of startThread() has ended and all work of beginWork() is done. False if
/// something is still running. Call it from a thread that startThread() did not start.
bool drainThreads(double seconds);

/// Announces work for drainThreads() that has no thread of its own. Pair each beginWork() with one endWork(), on any
/// thread. A thread that idles between tasks calls them in reverse order, so that it does not count while idle.
/// beginWork() takes no lock.
void beginWork();
void endWork();

}  // namespace zelk
