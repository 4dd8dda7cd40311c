// SPDX-License-Identifier: MIT
#include "platform/posix/PosixTasks.h"

#ifdef __APPLE__
#include <dispatch/dispatch.h>
#include <pthread.h>
#endif

#include <system_error>
#include <utility>

#include "platform/Thread.h"
#include "platform/posix/ThreadCount.h"

#ifndef __APPLE__
#include "platform/linux/TaskPool.h"
#endif

namespace zelk {

namespace {

using Task = std::function<void()>;

constexpr std::size_t apartStackBytes = 1024 * 1024;

#ifdef __APPLE__

// The order of TaskPriority.
constexpr qos_class_t classes[] = {QOS_CLASS_USER_INITIATED, QOS_CLASS_DEFAULT, QOS_CLASS_UTILITY};

void takePriority(TaskPriority priority) {
    pthread_set_qos_class_self_np(classes[static_cast<int>(priority)], 0);
}

void runBoxed(void* box) {
    auto* task = static_cast<Task*>(box);
    (*task)();
    delete task;  // release its captures before it counts as done
    endWork();
}

#else

constexpr int patientNiceness = 10;

void takePriority(TaskPriority priority) {
    if (priority == TaskPriority::utility) raiseNiceness(patientNiceness);
}

#endif

}  // namespace

#ifdef __APPLE__

ThreadTasks::ThreadTasks(std::chrono::milliseconds) {}
ThreadTasks::~ThreadTasks() = default;

void ThreadTasks::run(TaskPriority priority, Task task) {
    beginWork();
    dispatch_async_f(dispatch_get_global_queue(classes[static_cast<int>(priority)], 0), new Task(std::move(task)),
                     runBoxed);
}

#else

ThreadTasks::ThreadTasks(std::chrono::milliseconds keep)
    : urgent_(std::make_shared<TaskPool>(TaskPool::Options{"zelk.task", maxUrgentThreads, 0, keep})),
      patient_(
          std::make_shared<TaskPool>(TaskPool::Options{"zelk.task.util", maxPatientThreads, patientNiceness, keep})) {}

ThreadTasks::~ThreadTasks() {
    urgent_->close();
    patient_->close();
}

void ThreadTasks::run(TaskPriority priority, Task task) {
    TaskPool& pool = priority == TaskPriority::utility ? *patient_ : *urgent_;
    pool.run(priority == TaskPriority::standard ? 1 : 0, std::move(task));
}

#endif

void ThreadTasks::runApart(TaskPriority priority, Task task) {
    const auto box = std::make_shared<Task>(std::move(task));
    try {
        startThread("zelk.task.apart", apartStackBytes, [box, priority] {
            takePriority(priority);
            std::exchange(*box, nullptr)();
        });
    } catch (const std::system_error&) {
        run(priority, std::move(*box));
    }
}

}  // namespace zelk
