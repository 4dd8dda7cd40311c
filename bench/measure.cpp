// SPDX-License-Identifier: MIT
// measure PROGRAM ARGUMENT...: runs a program and prints {"wall":…,"processor":…, "peak":…,"status":…} (seconds, bytes,
// exit status) as the last line of standard error. Discards the program's own standard error.
//
// Deliberately small: a process's peak memory includes that of the process that started it, so a script could not
// measure a peak below its own.
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>

namespace {

double seconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

}  // namespace

int main(int count, char** words) {
    if (count < 2) {
        std::fprintf(stderr, "usage: measure PROGRAM ARGUMENT...\n");
        return 2;
    }
    const auto start = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
        dup2(open("/dev/null", O_WRONLY), STDERR_FILENO);
        execvp(words[1], words + 1);
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    if (child < 0 || wait4(child, &status, 0, &usage) != child) return 1;
    const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - start;
#ifdef __APPLE__
    constexpr long peakUnit = 1;
#else
    constexpr long peakUnit = 1024;
#endif
    std::fprintf(stderr, "{\"wall\":%.6f,\"processor\":%.6f,\"peak\":%ld,\"status\":%d}\n", wall.count(),
                 seconds(usage.ru_utime) + seconds(usage.ru_stime), usage.ru_maxrss * peakUnit,
                 WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status));
    return 0;
}
