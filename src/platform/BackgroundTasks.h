// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace zelk {

/// How urgently the user waits for a task.
enum class TaskPriority { userInitiated, standard, utility };

/// Runs closures off the main thread. Each task owns everything it touches. Safe from any thread.
class BackgroundTasks {
public:
    virtual ~BackgroundTasks() = default;
    /// Runs `task` once, concurrently with others. Runs it on the caller's thread, before returning, if no thread can
    /// be started, or if the caller is itself such a task and all threads are busy; so never call this while holding a
    /// lock that the task takes. The number of concurrent tasks is limited to some dozens: use runApart() for a task
    /// that may block indefinitely, and never let a task wait for one that another thread has yet to submit.
    virtual void run(TaskPriority priority, std::function<void()> task) = 0;
    /// Like run(), but on a dedicated thread, so that a task that blocks, for example on another program, delays
    /// nothing else.
    virtual void runApart(TaskPriority priority, std::function<void()> task) = 0;
};

}  // namespace zelk
