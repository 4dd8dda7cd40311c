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
    /// Runs `task` once, soon, on a thread of its own; on the caller's if the machine can make no more threads.
    virtual void run(TaskPriority priority, std::function<void()> task) = 0;
};

}  // namespace zelk
