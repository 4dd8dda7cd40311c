// SPDX-License-Identifier: MIT
#pragma once

namespace zelk {

/// Waits until every thread of startThread() has ended, `seconds` at most. False if some are still running. Call it
/// from a thread that was not started that way.
bool drainThreads(double seconds);

}  // namespace zelk
