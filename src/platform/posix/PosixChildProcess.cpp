// SPDX-License-Identifier: MIT
#include "platform/posix/PosixChildProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <mutex>
#include <string_view>
#include <system_error>

#include "platform/posix/Descriptor.h"

extern "C" char** environ;

namespace zelk {

namespace {

#ifdef __APPLE__
// macOS has no call that creates a close-on-exec pipe atomically. Creating a pipe and starting a child hold this lock.
std::mutex& startingChildren() {
    static std::mutex lock;
    return lock;
}
#endif

/// The two ends of a pipe, or errno in `error`. Children started by other threads do not inherit them.
struct Pipe {
    Pipe() {
        int ends[2];
#ifdef __APPLE__
        const std::lock_guard lock(startingChildren());
        error = ::pipe(ends) == 0 ? 0 : errno;
        if (error == 0)
            for (const int end : ends) ::fcntl(end, F_SETFD, FD_CLOEXEC);
#else
        error = ::pipe2(ends, O_CLOEXEC) == 0 ? 0 : errno;
#endif
        if (error != 0) return;
        reading = Descriptor(ends[0]);
        writing = Descriptor(ends[1]);
    }

    int error = 0;
    Descriptor reading;
    Descriptor writing;
};

/// How the standard streams of a child are made.
class StreamActions {
public:
    /// `output` is where its standard output goes. Standard error comes after it: `output` may have that number, if
    /// that stream was closed here.
    StreamActions(const ChildStreams& streams, int output) {
        ::posix_spawn_file_actions_init(&actions_);
        ::posix_spawnattr_init(&attributes_);
#ifdef __APPLE__
        ::posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_CLOEXEC_DEFAULT);
        if (streams.inheritsInput && ::fcntl(STDIN_FILENO, F_GETFD) != -1)
            ::posix_spawn_file_actions_addinherit_np(&actions_, STDIN_FILENO);
#endif
        ::posix_spawn_file_actions_adddup2(&actions_, output, STDOUT_FILENO);
        if (streams.errorsWithOutput) {
            ::posix_spawn_file_actions_adddup2(&actions_, output, STDERR_FILENO);
        } else {
            ::posix_spawn_file_actions_addopen(&actions_, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        }
        if (!streams.inheritsInput)
            ::posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
#ifdef __GLIBC__
#if __GLIBC_PREREQ(2, 34)
        // Ours are close-on-exec; this closes descriptors inherited from whoever started this process.
        ::posix_spawn_file_actions_addclosefrom_np(&actions_, STDERR_FILENO + 1);
#endif
#endif
    }
    StreamActions(const StreamActions&) = delete;
    StreamActions& operator=(const StreamActions&) = delete;
    ~StreamActions() {
        ::posix_spawnattr_destroy(&attributes_);
        ::posix_spawn_file_actions_destroy(&actions_);
    }

    const posix_spawn_file_actions_t* actions() const {
        return &actions_;
    }
    const posix_spawnattr_t* attributes() const {
        return &attributes_;
    }

private:
    posix_spawn_file_actions_t actions_;
    posix_spawnattr_t attributes_;
};

/// The environment of a child: this process's own, but for the PATH if there is another.
class ChildEnvironment {
public:
    explicit ChildEnvironment(const std::string& path) {
        if (path.empty()) return;
        path_ = "PATH=" + path;
        for (char** variable = environ; *variable != nullptr; ++variable)
            if (!std::string_view(*variable).starts_with("PATH=")) variables_.push_back(*variable);
        variables_.push_back(path_.data());
        variables_.push_back(nullptr);
    }
    ChildEnvironment(const ChildEnvironment&) = delete;
    ChildEnvironment& operator=(const ChildEnvironment&) = delete;

    char** variables() { return variables_.empty() ? environ : variables_.data(); }

private:
    std::string path_;
    std::vector<char*> variables_;
};

ChildOutcome notLaunched(int error) {
    return {std::generic_category().message(error), 0, {}};
}

/// Returns 0 or the error.
int spawn(const std::string& executable, const std::vector<std::string>& arguments, const std::string& toolPath,
          const ChildStreams& streams, const Pipe& pipe, pid_t& child) {
    std::vector<char*> words{const_cast<char*>(executable.c_str())};
    for (const std::string& argument : arguments) words.push_back(const_cast<char*>(argument.c_str()));
    words.push_back(nullptr);
    const StreamActions made(streams, pipe.writing.get());
    ChildEnvironment environment(toolPath);
#ifdef __APPLE__
    const std::lock_guard lock(startingChildren());
#endif
    return ::posix_spawn(&child, executable.c_str(), made.actions(), made.attributes(), words.data(),
                         environment.variables());
}

int waitForExit(pid_t child) {
    int status = 0;
    // Unknown where SIGCHLD is ignored, against which there is stopIgnoringChildren().
    if (uninterrupted([&] { return ::waitpid(child, &status, 0); }) < 0) return -1;
    return WIFSIGNALED(status) ? WTERMSIG(status) : WEXITSTATUS(status);
}

/// Appends what is there, and waits if that is nothing; false at the end.
bool readMore(const Descriptor& file, std::string& content) {
    std::array<char, 64 * 1024> buffer;
    const ssize_t got = uninterrupted([&] { return ::read(file.get(), buffer.data(), buffer.size()); });
    if (got > 0) content.append(buffer.data(), static_cast<std::size_t>(got));
    return got > 0;
}

std::string readToEnd(const Descriptor& file) {
    std::string content;
    while (readMore(file, content)) {
    }
    return content;
}

/// The end of a limited time, which does not move with the clock.
class Deadline {
public:
    explicit Deadline(double seconds)
        : end_(std::chrono::steady_clock::now() + std::chrono::duration_cast<std::chrono::steady_clock::duration>(
                                                      std::chrono::duration<double>(seconds))) {}

    /// At least 0.
    int millisecondsLeft() const {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end_ - std::chrono::steady_clock::now());
        return static_cast<int>(std::clamp<std::chrono::milliseconds::rep>(left.count(), 0, 1'000'000));
    }

private:
    std::chrono::steady_clock::time_point end_;
};

/// False if the limit was reached before the end.
bool readWithin(const ChildLimit& limit, const Deadline& deadline, const Descriptor& file, std::string& content) {
    for (;;) {
        pollfd waiting{file.get(), POLLIN, 0};
        const int ready = uninterrupted([&] { return ::poll(&waiting, 1, deadline.millisecondsLeft()); });
        if (ready == 0) return false;
        if (ready < 0 || !readMore(file, content)) return true;
        if (content.size() > limit.bytes) return false;
    }
}

/// False if it was still running at the end of the time.
bool hasExitedBy(const Deadline& deadline, pid_t child) {
    constexpr int pause = 5;  // milliseconds: nothing that macOS has too wakes up for both a child and a deadline
    for (;;) {
        siginfo_t exited{};
        const int looked = uninterrupted(
            [&] { return ::waitid(P_PID, static_cast<id_t>(child), &exited, WEXITED | WNOHANG | WNOWAIT); });
        if (looked != 0 || exited.si_pid != 0) return true;
        const int left = deadline.millisecondsLeft();
        if (left == 0) return false;
        ::poll(nullptr, 0, std::min(left, pause));
    }
}

/// Reads until the child has ended, or ends it.
std::string outputWithin(const ChildLimit& limit, const Descriptor& file, pid_t child) {
    const Deadline deadline(limit.seconds);
    std::string content;
    if (readWithin(limit, deadline, file, content) && hasExitedBy(deadline, child)) return content;
    ::kill(child, SIGKILL);
    return {};
}

}  // namespace

ChildOutcome PosixChildProcess::run(const std::string& executable, const std::vector<std::string>& arguments,
                                    const ChildStreams& streams) {
    Pipe pipe;
    if (pipe.error != 0) return notLaunched(pipe.error);
    pid_t child = 0;
    if (const int error = spawn(executable, arguments, toolPath_, streams, pipe, child)) return notLaunched(error);
    pipe.writing.close();
    ChildOutcome outcome;
    if (streams.limit) {
        outcome.output = outputWithin(*streams.limit, pipe.reading, child);
    } else if (streams.readsWhileRunning) {
        outcome.output = readToEnd(pipe.reading);
    }
    outcome.exitStatus = waitForExit(child);
    if (!streams.limit && !streams.readsWhileRunning) outcome.output = readToEnd(pipe.reading);
    return outcome;
}

void stopIgnoringChildren() {
    std::signal(SIGCHLD, SIG_DFL);
}

}  // namespace zelk
