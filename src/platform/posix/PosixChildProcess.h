// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ChildProcess.h"

namespace zelk {

/// Children by posix_spawn(). They inherit the environment, the working directory, the standard input and the signal
/// mask, and no other descriptor: a child that held another's pipe open would keep that one's reader waiting.
class PosixChildProcess : public ChildProcess {
public:
    ChildOutcome run(const std::string& executable, const std::vector<std::string>& arguments) override;
};

}  // namespace zelk
