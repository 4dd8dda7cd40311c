// SPDX-License-Identifier: MIT
#include "platform/posix/PosixTasks.h"

#include <system_error>

#include "platform/Thread.h"

namespace zelk {

namespace {

constexpr std::size_t taskStackBytes = 1024 * 1024;

// The names show in debuggers and in top; the order of TaskPriority.
constexpr const char* taskNames[] = {"zelk.task.user", "zelk.task", "zelk.task.util"};

}  // namespace

void ThreadTasks::run(TaskPriority priority, std::function<void()> task) {
    try {
        startThread(taskNames[static_cast<int>(priority)], taskStackBytes, task);
    } catch (const std::system_error&) {
        task();
    }
}

}  // namespace zelk
