// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

namespace zelk::zoo {

/// Runs `body` in a child process that may not do more than any stranger may (as root: as the user nobody; else as who
/// we are) and gives what it returns. A crash of the child fails the test. Call it before the test starts threads.
std::string inPowerlessChild(const std::function<std::string()>& body);

}  // namespace zelk::zoo
