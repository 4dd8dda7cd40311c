// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/Failure.h"

namespace zelk {

struct ChildOutcome {
    Failure launchFailure;  ///< set if no process could be started; the rest is then empty
    int exitStatus = 0;     ///< exit status, or the number of the signal that killed it; -1 if unknown
    std::string output;     ///< standard output, merged with standard error unless that is dropped; raw bytes
};

/// For a program that may never answer, or never stop.
struct ChildLimit {
    double seconds = 0;     ///< for all of it
    std::size_t bytes = 0;  ///< of output

    bool operator==(const ChildLimit&) const = default;
};

/// How a child's standard streams are connected, and when its output is read.
struct ChildStreams {
    bool inheritsInput = true;       ///< else standard input is /dev/null
    bool errorsWithOutput = true;    ///< else standard error goes to /dev/null
    bool readsWhileRunning = false;  ///< for a program that may write more than a pipe holds
    /// If set, the output is read while it runs, and a child that reaches it is killed: it has no output then.
    std::optional<ChildLimit> limit = std::nullopt;

    bool operator==(const ChildStreams&) const = default;
};

/// Runs programs as child processes. Blocking; safe from any thread.
class ChildProcess {
public:
    virtual ~ChildProcess() = default;
    /// Starts the program at the path `executable` (no search on PATH) with `arguments`, in this process's working
    /// directory and environment. Waits for its exit, without a timeout but for that of `streams`, and unless `streams`
    /// say otherwise only then reads its output: a program that writes more than a pipe holds never exits.
    virtual ChildOutcome run(const std::string& executable, const std::vector<std::string>& arguments,
                             const ChildStreams& streams) = 0;
    /// With both outputs merged into one pipe and the standard input of this process.
    ChildOutcome run(const std::string& executable, const std::vector<std::string>& arguments) {
        return run(executable, arguments, ChildStreams{});
    }
};

}  // namespace zelk
