// SPDX-License-Identifier: MIT
#pragma once

namespace zelk {

/// Waits until every thread of startThread() has ended and all work of beginWork() is done, `seconds` at most. False if
/// something is still under way. Call it from a thread that was not started that way.
bool drainThreads(double seconds);

/// Work that drainThreads() waits for although it has no thread of its own. Each is paired with one endWork(), on any
/// thread. A thread that idles between two pieces of work calls them the other way about, and counts for nothing.
/// beginWork() takes no lock.
void beginWork();
void endWork();

}  // namespace zelk
