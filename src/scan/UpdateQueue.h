// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <mutex>
#include <vector>

#include "scan/ScanUpdate.h"

namespace zelk {

/// Unbounded, many writers, one reader; keeps the order of yields and never blocks a writer. Either side may end it:
/// what is yielded afterwards is dropped. Shared by shared_ptr between both sides.
class UpdateQueue {
public:
    /// Runs once, on the thread that ends the queue, whichever side that is and without the lock; at once if the queue
    /// has ended already.
    void setTerminationHandler(std::function<void()> handler);
    /// Called on a writer's thread, without the lock, when there is something to take (or the end has come) and the
    /// reader was not yet woken for it: once per batch.
    void setWakeReader(std::function<void()> wake);

    void yield(ScanUpdate update);
    /// The writers' end: the reader still takes what was yielded before.
    void finish();
    /// The reader's end: gives back what has not been taken, and wakes nobody any more. Any number of times, also
    /// behind finish(). What comes back may hold a whole tree: the reader chooses on which thread it is released.
    std::vector<ScanUpdate> terminate();

    struct Batch {
        std::vector<ScanUpdate> updates;
        bool ended = false;  ///< nothing will come behind these
    };
    /// All that has come since the last call; never blocks.
    Batch takeAll();

private:
    // Both under the lock; what they give is called without it.
    std::function<void()> end();
    std::function<void()> wakeOnce();

    std::mutex mutex_;
    std::vector<ScanUpdate> updates_;
    std::function<void()> terminationHandler_;
    std::function<void()> wakeReader_;
    bool ended_ = false;
    bool woken_ = false;
};

}  // namespace zelk
