// SPDX-License-Identifier: MIT
#pragma once

#ifdef __linux__

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <map>
#include <regex>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "fakes/TestFiles.h"

namespace zelk::fakes {

using Arguments = std::vector<std::string>;

/// Runs a program without standard error. Returns the exit status, or -1 if a signal killed it.
inline int runProgram(const Arguments& arguments) {
    const pid_t child = ::fork();
    if (child == 0) {
        std::vector<char*> pointers;
        for (const std::string& argument : arguments) pointers.push_back(const_cast<char*>(argument.c_str()));
        pointers.push_back(nullptr);
        const int quiet = ::open("/dev/null", O_WRONLY);
        ::dup2(quiet, STDERR_FILENO);
        ::execvp(pointers[0], pointers.data());
        ::_exit(127);
    }
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// One system call of a program: strace counts each by its name, from 1.
struct CallPosition {
    std::string call;
    int number;
    std::string line;

    std::string injection(const std::string& what) const {
        return "inject=" + call + ":" + what + ":when=" + std::to_string(number);
    }
};

/// A program run under strace, which can make each of its system calls fail or kill it.
class TracedProgram {
public:
    /// `calls` is in the form of strace's "trace="; `log` is a file for its output; `begin` occurs in the line of the
    /// call after which calls are counted.
    TracedProgram(std::string calls, std::string log, std::string begin)
        : calls_(std::move(calls)), log_(std::move(log)), begin_(std::move(begin)) {}

    int run(const Arguments& program, const Arguments& injections) const {
        ::unlink(log_.c_str());
        Arguments arguments{"strace", "-qq", "-y", "-o", log_, "-e", "trace=" + calls_};
        for (const std::string& injection : injections) arguments.insert(arguments.end(), {"-e", injection});
        arguments.insert(arguments.end(), program.begin(), program.end());
        return runProgram(arguments);
    }

    /// Whether the last run met a simulated failure or kill.
    bool injected() const { return fileContent(log_).find("(INJECTED)") != std::string::npos; }

    /// The calls of the last run. Empty if strace cannot trace: it needs the package strace and permission to trace
    /// child processes (ptrace).
    std::vector<CallPosition> positions() const {
        std::vector<CallPosition> found;
        std::map<std::string, int> counts;
        bool begun = false;
        std::istringstream lines(fileContent(log_));
        for (std::string line; std::getline(lines, line);) {
            const std::string call = line.substr(0, line.find('('));
            const int number = ++counts[call];
            // The program itself writes nothing to a pipe, but sanitizers do, to probe memory.
            const bool bySanitizer = call == "write" && line.find("<pipe:[") != std::string::npos;
            line = withoutDescriptorPaths(std::move(line));
            if (begun && !bySanitizer) found.push_back({call, number, line});
            begun = begun || line.find(begin_) != std::string::npos;
        }
        return found;
    }

private:
    /// "write(5</tmp/file>, …" as "write(5, …".
    static std::string withoutDescriptorPaths(std::string line) {
        static const std::regex path("([0-9])<[^>]*>");
        return std::regex_replace(line, path, "$1");
    }

    std::string calls_;
    std::string log_;
    std::string begin_;
};

}  // namespace zelk::fakes

#endif
