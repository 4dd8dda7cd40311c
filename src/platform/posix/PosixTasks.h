// SPDX-License-Identifier: MIT
#pragma once

#include "platform/BackgroundTasks.h"

namespace zelk {

/// Every task on a detached thread of its own; drainThreads() waits for them. A machine that can make no more threads
/// runs the task on the caller's.
class ThreadTasks : public BackgroundTasks {
public:
    void run(TaskPriority priority, std::function<void()> task) override;
};

}  // namespace zelk
