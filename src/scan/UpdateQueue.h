// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <mutex>
#include <vector>

#include "scan/ScanUpdate.h"

namespace zelk {

/// An unbounded queue with many writers and one reader. Keeps the order of yields and never blocks a writer. Either
/// side may end it; later yields are dropped. Both sides share it by shared_ptr.
class UpdateQueue {
public:
    /// Runs once, without the lock, on the thread that ends the queue, whichever side that is; at once if the queue has
    /// already ended.
    void setTerminationHandler(std::function<void()> handler);
    /// Called on a writer's thread, without the lock, when there are updates (or the end) for which the reader was not
    /// yet woken: once per batch.
    void setWakeReader(std::function<void()> wake);

    void yield(ScanUpdate update);
    /// Ends the queue from the writers' side: the reader still receives earlier updates.
    void finish();
    /// Ends the queue from the reader's side: returns the remaining updates and wakes nobody from now on. May be called
    /// repeatedly, also after finish(). The result may hold a whole tree, so the reader chooses the thread that
    /// releases it.
    std::vector<ScanUpdate> terminate();

    struct Batch {
        std::vector<ScanUpdate> updates;
        bool ended = false;  ///< no more updates will follow
    };
    /// The updates since the last call; never blocks.
    Batch takeAll();

private:
    // Both require the lock; call the functions they return without it.
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
