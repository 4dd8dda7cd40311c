// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <memory>

#include "platform/BackgroundTasks.h"

namespace zelk {

class TaskPool;

/// On macOS the system's own queues run the tasks. On Linux two pools do: what somebody waits for has threads of its
/// own and is not held up by ten thousand tasks that can wait, whose threads are niced and could not be made urgent
/// again. drainThreads() waits for all tasks. Those that were given run to their end also when this has gone.
class ThreadTasks : public BackgroundTasks {
public:
    /// Together 64: more than a disk has use for, and few enough for a desktop that does other things as well.
    static constexpr std::size_t mostUrgentThreads = 20;
    static constexpr std::size_t mostPatientThreads = 44;

    /// On Linux a thread without work stays for `keep`.
    explicit ThreadTasks(std::chrono::milliseconds keep = std::chrono::seconds(10));
    ThreadTasks(const ThreadTasks&) = delete;
    ThreadTasks& operator=(const ThreadTasks&) = delete;
    ~ThreadTasks() override;

    void run(TaskPriority priority, std::function<void()> task) override;
    void runApart(TaskPriority priority, std::function<void()> task) override;

private:
#ifndef __APPLE__
    std::shared_ptr<TaskPool> urgent_;   // userInitiated and standard
    std::shared_ptr<TaskPool> patient_;  // utility
#endif
};

}  // namespace zelk
