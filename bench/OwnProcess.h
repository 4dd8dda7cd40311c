// SPDX-License-Identifier: MIT
#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <cstddef>
#include <cstdio>
#include <optional>
#include <string>
#include <vector>

namespace zelk::bench {

/// Runs this program again with these arguments, and returns what it prints; nothing if it fails.
inline std::optional<std::string> outputOfOwn(std::vector<std::string> arguments) {
    int ends[2];
    if (::pipe(ends) != 0) return std::nullopt;
    arguments.insert(arguments.begin(), "own");
    std::vector<char*> words;
    for (std::string& argument : arguments) words.push_back(argument.data());
    words.push_back(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(ends[1], STDOUT_FILENO);
        ::close(ends[0]);
        ::close(ends[1]);
        ::execv("/proc/self/exe", words.data());
        ::_exit(127);
    }
    ::close(ends[1]);
    std::string output;
    char part[4096];
    for (ssize_t count = 0; (count = ::read(ends[0], part, sizeof part)) > 0;)
        output.append(part, static_cast<std::size_t>(count));
    ::close(ends[0]);
    int status = 0;
    if (child < 0 || ::waitpid(child, &status, 0) != child || status != 0) return std::nullopt;
    return output;
}

}  // namespace zelk::bench
