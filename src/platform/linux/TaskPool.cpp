// SPDX-License-Identifier: MIT
#include "platform/linux/TaskPool.h"

#include <sys/resource.h>

#include <system_error>
#include <utility>

#include "platform/Thread.h"
#include "platform/posix/ThreadCount.h"

namespace zelk {

namespace {

/// The pool of the calling thread.
thread_local const TaskPool* ownPool = nullptr;

/// Destroys the task with its captures before it counts as done.
void runCounted(std::function<void()> task) {
    task();
    task = nullptr;
    endWork();
}

}  // namespace

void raiseNiceness(int niceness) {
    if (::getpriority(PRIO_PROCESS, 0) < niceness) ::setpriority(PRIO_PROCESS, 0, niceness);
}

void TaskPool::run(std::size_t rank, Task task) {
    beginWork();
    Way way = take(rank, task);
    if (way == Way::newThread) {
        // Move, do not copy: a copy here might be destroyed last, releasing a large tree on the caller's thread.
        const auto box = std::make_shared<Task>(std::move(task));
        try {
            startThread(options_.threadName, stackBytes,
                        [self = shared_from_this(), box] { self->work(std::exchange(*box, nullptr)); });
            return;
        } catch (const std::system_error&) {
            task = std::move(*box);
            way = takeWithoutThread(rank, task);
        }
    }
    if (way == Way::queued) return;
    runCounted(std::move(task));
    drainQueue();
}

TaskPool::Way TaskPool::take(std::size_t rank, Task& task) {
    const std::lock_guard lock(mutex_);
    const bool findsIdleThread = queued_ < idle_;
    if (!findsIdleThread && threads_ < options_.maxThreads) {
        ++threads_;
        return Way::newThread;
    }
    if (!findsIdleThread && ownPool == this) return Way::here;
    enqueue(rank, task);
    return Way::queued;
}

/// Like take(), after starting a thread failed.
TaskPool::Way TaskPool::takeWithoutThread(std::size_t rank, Task& task) {
    const std::lock_guard lock(mutex_);
    if (--threads_ == 0 || ownPool == this) return Way::here;
    enqueue(rank, task);
    return Way::queued;
}

void TaskPool::enqueue(std::size_t rank, Task& task) {
    queues_.at(rank).push_back(std::move(task));
    ++queued_;
    given_.notify_one();
}

/// If the last thread failed to start, other callers may have relied on it.
void TaskPool::drainQueue() {
    Task task;
    while (true) {
        {
            const std::lock_guard lock(mutex_);
            if (threads_ > 0 || !dequeue(task)) return;
        }
        runCounted(std::move(task));
    }
}

void TaskPool::work(Task task) {
    if (options_.niceness != 0) raiseNiceness(options_.niceness);
    ownPool = this;
    endWork();  // drop the thread's own count: only its tasks count
    do runCounted(std::move(task));
    while (next(task));
}

/// Waits for a task. False if the thread is to end; it then counts again until it has.
bool TaskPool::next(Task& task) {
    std::unique_lock lock(mutex_);
    ++idle_;
    given_.wait_for(lock, options_.keep, [this] { return queued_ > 0 || closed_; });
    --idle_;
    if (dequeue(task)) return true;
    --threads_;
    if (!closed_) beginWork();
    return false;
}

bool TaskPool::dequeue(Task& task) {
    for (std::deque<Task>& queue : queues_) {
        if (queue.empty()) continue;
        task = std::move(queue.front());
        queue.pop_front();
        --queued_;
        return true;
    }
    return false;
}

void TaskPool::close() {
    const std::lock_guard lock(mutex_);
    closed_ = true;
    for (std::size_t thread = 0; thread < threads_; ++thread) beginWork();
    given_.notify_all();
}

std::size_t TaskPool::threadCount() const {
    const std::lock_guard lock(mutex_);
    return threads_;
}

std::size_t TaskPool::idleCount() const {
    const std::lock_guard lock(mutex_);
    return idle_;
}

}  // namespace zelk
