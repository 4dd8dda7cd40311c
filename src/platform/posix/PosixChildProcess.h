// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>

#include "platform/ChildProcess.h"

namespace zelk {

/// Starts children with posix_spawn(). They inherit the environment, working directory and signal mask, and of the
/// descriptors at most standard input: a child that kept another's pipe open would keep that one's reader waiting.
class PosixChildProcess : public ChildProcess {
public:
    PosixChildProcess() = default;
    /// Children have this PATH instead of the inherited one. What is started is never looked for in either.
    explicit PosixChildProcess(std::string toolPath) : toolPath_(std::move(toolPath)) {}

    using ChildProcess::run;
    ChildOutcome run(const std::string& executable, const std::vector<std::string>& arguments,
                     const ChildStreams& streams) override;

private:
    const std::string toolPath_;  // empty: the inherited one
};

/// Has this process told how its children end, even if whoever started it ignores that: it inherits to ignore SIGCHLD,
/// and then the exit status of no child is known. For the beginning of main(), before there are threads.
void stopIgnoringChildren();

}  // namespace zelk
