// SPDX-License-Identifier: MIT
#include "platform/posix/PosixTasks.h"

#include <memory>
#include <system_error>
#include <utility>

#include "platform/Thread.h"

namespace zelk {

namespace {

constexpr std::size_t taskStackBytes = 1024 * 1024;

// The names show in debuggers and in top; the order of TaskPriority.
constexpr const char* taskNames[] = {"zelk.task.user", "zelk.task", "zelk.task.util"};

}  // namespace

void ThreadTasks::run(TaskPriority priority, std::function<void()> task) {
    // Handed over, not copied: a copy on this side might be the last to go, and with it a large tree would be released
    // on the caller's thread.
    const auto box = std::make_shared<std::function<void()>>(std::move(task));
    const auto runOnce = [](std::function<void()>& boxed) { std::exchange(boxed, nullptr)(); };
    try {
        startThread(taskNames[static_cast<int>(priority)], taskStackBytes, [box, runOnce] { runOnce(*box); });
    } catch (const std::system_error&) {
        runOnce(*box);
    }
}

}  // namespace zelk
