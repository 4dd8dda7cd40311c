// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/Failure.h"

namespace zelk {

struct ChildOutcome {
    Failure launchFailure;  ///< set if no process could be started; the rest is then empty
    int exitStatus = 0;     ///< exit status, or the number of the signal that killed it; -1 if unknown
    std::string output;     ///< standard output and standard error, merged; raw bytes
};

/// Runs programs as child processes. Blocking; safe from any thread.
class ChildProcess {
public:
    virtual ~ChildProcess() = default;
    /// Starts the program at the path `executable` (no search on PATH) with `arguments`, in this process's working
    /// directory and environment, both outputs merged into one pipe. Waits for its exit without a timeout and only then
    /// reads the pipe: a program that writes more than the pipe holds never exits.
    virtual ChildOutcome run(const std::string& executable, const std::vector<std::string>& arguments) = 0;
};

}  // namespace zelk
