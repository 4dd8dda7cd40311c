// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <utility>

#include "platform/BackgroundTasks.h"

namespace zelk {

/// Destroys `value` in a background task. A tree of a hundred thousand folders takes milliseconds to destroy, which the
/// main thread must not spend. The task itself empties the value: closures are copied on their way, and the last copy
/// may be destroyed on any thread.
template <class T>
void releaseElsewhere(BackgroundTasks& tasks, T value) {
    tasks.run(TaskPriority::utility, [held = std::make_shared<T>(std::move(value))] { *held = T(); });
}

}  // namespace zelk
