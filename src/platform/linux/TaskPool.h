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

/// Makes the calling thread give way to others: its niceness is at least so much from now on. On Linux that is a
/// thread's own, and it can never be lowered again.
void giveWay(int niceness);

/// Threads that are made as tasks come, up to a limit, and kept for a while when they have nothing to do. A task finds
/// a thread of its own for as long as the limit allows; beyond it tasks wait, the urgent ones ahead of the others. Safe
/// from any thread. Its threads hold it, so whoever made it calls close() instead of waiting for it to go.
class TaskPool : public std::enable_shared_from_this<TaskPool> {
public:
    static constexpr std::size_t ranks = 2;  ///< of urgency; 0 goes first
    static constexpr std::size_t stackBytes = 1024 * 1024;

    struct Form {
        std::string threadName;
        std::size_t mostThreads = 1;
        int niceness = 0;  ///< of its threads, at least; 0 leaves them as they are
        std::chrono::milliseconds keep = std::chrono::seconds(10);  ///< how long a thread without work stays
    };

    explicit TaskPool(Form form) : form_(std::move(form)) {}

    /// Runs `task` once on a thread of the pool. On the caller's where no thread can be made and there is none; and for
    /// a task of this pool that gives another one while all threads are busy, so that it may wait for it.
    void run(std::size_t rank, std::function<void()> task);

    /// No task is given any more. Threads that have nothing to do end now, the others as soon as nothing is left;
    /// drainThreads() waits for them, as it does for every task.
    void close();

    /// How many threads there are; those that are just being made count, too.
    std::size_t threadCount() const;
    /// How many of them have nothing to do.
    std::size_t idleCount() const;

private:
    using Task = std::function<void()>;

    enum class Way { queued, newThread, here };

    Way take(std::size_t rank, Task& task);
    Way takeWithoutThread(std::size_t rank, Task& task);
    void enqueue(std::size_t rank, Task& task);
    void work(Task task);
    void workOffQueue();
    bool next(Task& task);
    bool dequeue(Task& task);

    const Form form_;
    mutable std::mutex mutex_;
    std::condition_variable given_;
    std::array<std::deque<Task>, ranks> queues_;
    std::size_t queued_ = 0;
    std::size_t threads_ = 0;  ///< never 0 while tasks are queued, but for the moment in which one fails to be made
    std::size_t idle_ = 0;
    bool closed_ = false;
};

}  // namespace zelk
