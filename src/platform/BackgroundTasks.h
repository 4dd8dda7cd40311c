// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace zelk {

/// How urgent a task is to the person in front of the screen.
enum class TaskPriority { userInitiated, standard, utility };

/// Work off the main thread: each task is a closure that owns all it touches. Safe from any thread.
class BackgroundTasks {
public:
    virtual ~BackgroundTasks() = default;
    /// Runs `task` once, soon, beside others. On the caller's thread, before this returns, if the machine can make no
    /// thread, or if the caller is such a task itself and all threads are busy: so give none while holding a lock that
    /// it takes. However many tasks there are, only some dozens run at the same time: what may stall for good goes to
    /// runApart(), and a task must not wait for one that another thread has yet to give.
    virtual void run(TaskPriority priority, std::function<void()> task) = 0;
    /// The same on a thread of its own, so that a task that stalls, on another program say, holds up nothing else.
    virtual void runApart(TaskPriority priority, std::function<void()> task) = 0;
};

}  // namespace zelk
