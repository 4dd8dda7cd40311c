// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace zelk {

/// Starts a detached thread. The thread keeps the full `name` itself (currentThreadName()); the kernel may truncate it
/// (15 characters on Linux). Throws std::system_error if no thread can be started.
void startThread(std::string name, std::size_t stackBytes, std::function<void()> body);

/// The full name of the calling thread; empty if startThread() did not start it.
const std::string& currentThreadName();

}  // namespace zelk
