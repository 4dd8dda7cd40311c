// SPDX-License-Identifier: MIT
#include "platform/posix/PosixTasks.h"

#ifdef __APPLE__
#include <pthread.h>
#else
#include <sys/resource.h>
#endif

#include <memory>
#include <system_error>
#include <utility>

#include "platform/Thread.h"

namespace zelk {

namespace {

constexpr std::size_t taskStackBytes = 1024 * 1024;

// The names show in debuggers and in top; the order of TaskPriority.
constexpr const char* taskNames[] = {"zelk.task.user", "zelk.task", "zelk.task.util"};

/// Tells the system how urgent the calling thread is.
void takePriority(TaskPriority priority) {
#ifdef __APPLE__
    constexpr qos_class_t classes[] = {QOS_CLASS_USER_INITIATED, QOS_CLASS_DEFAULT, QOS_CLASS_UTILITY};
    pthread_set_qos_class_self_np(classes[static_cast<int>(priority)], 0);
#else
    // On Linux a niceness is a thread's own. It cannot be lowered again, so only what can wait is touched.
    if (priority == TaskPriority::utility) setpriority(PRIO_PROCESS, 0, 10);
#endif
}

}  // namespace

void ThreadTasks::run(TaskPriority priority, std::function<void()> task) {
    // Handed over, not copied: a copy on this side might be the last to go, and with it a large tree would be released
    // on the caller's thread.
    const auto box = std::make_shared<std::function<void()>>(std::move(task));
    const auto runOnce = [](std::function<void()>& boxed) { std::exchange(boxed, nullptr)(); };
    try {
        startThread(taskNames[static_cast<int>(priority)], taskStackBytes, [box, runOnce, priority] {
            takePriority(priority);
            runOnce(*box);
        });
    } catch (const std::system_error&) {
        runOnce(*box);
    }
}

}  // namespace zelk
