// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/Failure.h"

namespace zelk {

struct ChildOutcome {
    Failure launchFailure;  ///< set if no process came to be; the rest is then empty
    int exitStatus = 0;     ///< what it ended with; of one that a signal ended, the signal's number; -1 if unknown
    std::string output;     ///< the bytes of its standard output and standard error, in one
};

/// Programs as children of this one. Blocking; safe from any thread.
class ChildProcess {
public:
    virtual ~ChildProcess() = default;
    /// Starts the program at the path `executable` with `arguments` behind its name, in the working directory and the
    /// environment of this process, both outputs into one pipe. Waits for its exit however long that takes, and only
    /// then reads the pipe: a program that writes more than a pipe holds before it ends never ends.
    virtual ChildOutcome run(const std::string& executable, const std::vector<std::string>& arguments) = 0;
};

}  // namespace zelk
