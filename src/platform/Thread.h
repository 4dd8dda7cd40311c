// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace zelk {

/// Starts a detached thread. `name` is kept whole by the new thread itself (currentThreadName()); the kernel shows as
/// much of it as it takes (15 characters on Linux). Throws std::system_error if no thread can be made.
void startThread(std::string name, std::size_t stackBytes, std::function<void()> body);

/// The full name that the calling thread was started with; empty on any other thread.
const std::string& currentThreadName();

}  // namespace zelk
