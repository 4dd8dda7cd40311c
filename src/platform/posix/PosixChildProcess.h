// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ChildProcess.h"

namespace zelk {

/// Starts children with posix_spawn(). They inherit the environment, working directory, standard input and signal mask,
/// but no other descriptor: a child that kept another's pipe open would keep that one's reader waiting.
class PosixChildProcess : public ChildProcess {
public:
    ChildOutcome run(const std::string& executable, const std::vector<std::string>& arguments) override;
};

}  // namespace zelk
