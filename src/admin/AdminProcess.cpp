// SPDX-License-Identifier: MIT
#include "admin/AdminProcess.h"

#include <dirent.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <system_error>

#include "admin/AdminCommand.h"

namespace zelk {

namespace {

constexpr int notStarted = 127;  // as a shell has it

std::string reasonOf(int error) {
    return std::generic_category().message(error);
}

void closeFrom(int first) {
#ifdef SYS_close_range
    if (::syscall(SYS_close_range, static_cast<unsigned>(first), ~0U, 0U) == 0) return;
#endif
    // Not up to the limit, which may have been lowered since a descriptor was opened.
    std::vector<int> open;
    DIR* const folder = ::opendir("/proc/self/fd");
    if (folder == nullptr) return complain("Stray descriptors stay open: " + reasonOf(errno) + ".");
    while (const dirent* const entry = ::readdir(folder)) {
        const long descriptor = std::strtol(entry->d_name, nullptr, 10);  // 0 for "." and ".."
        if (descriptor >= first && descriptor != ::dirfd(folder)) open.push_back(static_cast<int>(descriptor));
    }
    ::closedir(folder);
    for (const int descriptor : open) ::close(descriptor);
}

std::vector<char*> pointersTo(const std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (const std::string& text : texts) pointers.push_back(const_cast<char*>(text.c_str()));
    pointers.push_back(nullptr);
    return pointers;
}

int statusOf(const std::vector<std::string>& program) {
    pid_t child = 0;
    const int error = ::posix_spawn(&child, program.front().c_str(), nullptr, nullptr, pointersTo(program).data(),
                                    pointersTo(adminEnvironment()).data());
    if (error != 0) {
        complain(program.front() + " cannot be started: " + reasonOf(error) + ".");
        return notStarted;
    }
    int status = 0;
    while (::waitpid(child, &status, 0) < 0) {
        if (errno != EINTR) return notStarted;
    }
    return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

}  // namespace

void leaveInheritanceBehind() {
    const int null = ::open("/dev/null", O_RDWR);
    for (int descriptor = 0; descriptor <= STDERR_FILENO; ++descriptor)
        if (descriptor == STDIN_FILENO || ::fcntl(descriptor, F_GETFD) == -1) ::dup2(null, descriptor);
    closeFrom(STDERR_FILENO + 1);

    // The programs inherit which signals are ignored. Not every number is one of a signal that can be.
    for (int number = 1; number <= SIGRTMAX; ++number) std::signal(number, SIG_DFL);
    // Zelk may end before they do, and then nobody reads what they print: that must not cut them off.
    std::signal(SIGPIPE, SIG_IGN);
    sigset_t none;
    ::sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);

    ::umask(022);
    if (::chdir("/") != 0) complain("The root folder cannot be entered: " + reasonOf(errno) + ".");
}

int runInTurn(const std::vector<std::vector<std::string>>& programs) {
    int last = 0;
    for (const std::vector<std::string>& program : programs) last = statusOf(program);
    return last;
}

int dropCaches(const char* control) {
    const int file = ::open(control, O_WRONLY | O_CLOEXEC);
    if (file >= 0) ::sync();
    const bool written = file >= 0 && ::write(file, "3\n", 2) == 2;
    const int error = errno;
    if (file >= 0) ::close(file);
    if (!written) complain("The caches cannot be dropped: " + reasonOf(error) + ".");
    return written ? 0 : 1;
}

void complain(const std::string& sentence) {
    const std::string line = sentence + "\n";
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, line.data(), line.size());
}

}  // namespace zelk
