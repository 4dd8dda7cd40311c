// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>

namespace zelk {

/// Raises the calling thread's niceness to at least `niceness`. On Linux this is per thread and cannot be undone.
void raiseNiceness(int niceness);

/// A thread pool that grows with its tasks up to a limit and keeps idle threads for a while. Beyond the limit tasks are
/// queued, urgent ones first. Safe from any thread. Its threads keep it alive, so its owner calls close() instead of
/// waiting for its destruction.
class TaskPool : public std::enable_shared_from_this<TaskPool> {
public:
    static constexpr std::size_t ranks = 2;  ///< priorities; 0 runs first
    static constexpr std::size_t stackBytes = 1024 * 1024;

    struct Options {
        std::string threadName;
        std::size_t maxThreads = 1;
        int niceness = 0;  ///< minimum niceness of its threads; 0 leaves it unchanged
        std::chrono::milliseconds keep = std::chrono::seconds(10);  ///< how long an idle thread stays
    };

    explicit TaskPool(Options options) : options_(std::move(options)) {}

    /// Runs `task` once on a thread of the pool. Runs it on the caller's thread if the pool has no thread and none can
    /// be started, or if the caller is a task of this pool and all threads are busy, so that a task may wait for its
    /// subtask.
    void run(std::size_t rank, std::function<void()> task);

    /// Call after the last run(). Idle threads end now, the others when no work is left; drainThreads() waits for them
    /// as for every task.
    void close();

    /// The number of threads, including those being started.
    std::size_t threadCount() const;
    /// The number of idle threads.
    std::size_t idleCount() const;

private:
    using Task = std::function<void()>;

    enum class Way { queued, newThread, here };

    Way take(std::size_t rank, Task& task);
    Way takeWithoutThread(std::size_t rank, Task& task);
    void enqueue(std::size_t rank, Task& task);
    void work(Task task);
    void drainQueue();
    bool next(Task& task);
    bool dequeue(Task& task);

    const Options options_;
    mutable std::mutex mutex_;
    std::condition_variable given_;
    std::array<std::deque<Task>, ranks> queues_;
    std::size_t queued_ = 0;
    std::size_t threads_ = 0;  ///< 0 while tasks are queued only while the last one fails to start
    std::size_t idle_ = 0;
    bool closed_ = false;
};

}  // namespace zelk
