// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <memory>

#include "platform/BackgroundTasks.h"

namespace zelk {

class TaskPool;

/// On macOS the system's queues run the tasks. On Linux two pools do: urgent tasks have threads of their own, so that
/// ten thousand patient tasks do not delay them; the threads of the latter are niced for good. drainThreads() waits for
/// all tasks. Submitted tasks run to their end even after this is destroyed.
class ThreadTasks : public BackgroundTasks {
public:
    /// Together 64: more than a disk can use, and few enough to leave the desktop responsive.
    static constexpr std::size_t maxUrgentThreads = 20;
    static constexpr std::size_t maxPatientThreads = 44;

    /// On Linux an idle thread stays for `keep`.
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
