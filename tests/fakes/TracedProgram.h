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

/// Runs a program with nothing on its standard error. The exit status, or -1 if a signal ended it.
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

/// One call of a program: strace counts each by its name, from 1.
struct CallPosition {
    std::string call;
    int number;
    std::string line;

    std::string injection(const std::string& what) const {
        return "inject=" + call + ":" + what + ":when=" + std::to_string(number);
    }
};

/// A program under strace, each of whose system calls can be made to fail or to be its last.
class TracedProgram {
public:
    /// `calls` as strace's "trace=" takes them; `log` is a file of its own; `begin` stands in the line of the call
    /// after which the interesting ones come.
    TracedProgram(std::string calls, std::string log, std::string begin)
        : calls_(std::move(calls)), log_(std::move(log)), begin_(std::move(begin)) {}

    int run(const Arguments& program, const Arguments& injections) const {
        ::unlink(log_.c_str());
        Arguments arguments{"strace", "-qq", "-y", "-o", log_, "-e", "trace=" + calls_};
        for (const std::string& injection : injections) arguments.insert(arguments.end(), {"-e", injection});
        arguments.insert(arguments.end(), program.begin(), program.end());
        return runProgram(arguments);
    }

    /// What the last run was told to pretend has happened.
    bool injected() const { return fileContent(log_).find("(INJECTED)") != std::string::npos; }

    /// The calls of the last run. None where strace cannot trace a program: that needs the package strace and the
    /// permission to trace one's own children (ptrace).
    std::vector<CallPosition> positions() const {
        std::vector<CallPosition> found;
        std::map<std::string, int> counts;
        bool begun = false;
        std::istringstream lines(fileContent(log_));
        for (std::string line; std::getline(lines, line);) {
            const std::string call = line.substr(0, line.find('('));
            const int number = ++counts[call];
            // To a pipe the program writes nothing, but a sanitizer in it does, to see whether memory may be read.
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
