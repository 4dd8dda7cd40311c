// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace zelk {

/// Starts a program from the PATH independently of this process: not as its child, in a session of its own, so that it
/// survives this process and leaves no zombie. Discards its output, returns at once and ignores failures. `command` is
/// the program and its arguments.
void startDetached(std::vector<std::string> command);

}  // namespace zelk
