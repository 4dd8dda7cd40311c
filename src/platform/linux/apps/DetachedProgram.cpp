// SPDX-License-Identifier: MIT
#include "platform/linux/apps/DetachedProgram.h"

#include <spawn.h>
#include <sys/wait.h>

#include <system_error>
#include <utility>

#include "platform/Thread.h"
#include "platform/posix/Descriptor.h"

extern "C" char** environ;

namespace zelk {

namespace {

/// The shell starts the program in the background and exits at once, so that init adopts the program. Doing the same
/// with fork() would copy the page tables of a large process.
void startThroughShell(const std::vector<std::string>& command) {
    std::vector<std::string> words{"/bin/sh", "-c", "\"$@\" </dev/null >/dev/null 2>&1 &", "sh"};
    words.insert(words.end(), command.begin(), command.end());
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);

    posix_spawnattr_t attributes;
    ::posix_spawnattr_init(&attributes);
    ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
    pid_t shell = 0;
    const int error = ::posix_spawn(&shell, words.front().c_str(), nullptr, &attributes, arguments.data(), environ);
    ::posix_spawnattr_destroy(&attributes);
    if (error == 0) uninterrupted([&] { return ::waitpid(shell, nullptr, 0); });
}

}  // namespace

void startDetached(std::vector<std::string> command) {
    const auto start = [command = std::move(command)] { startThroughShell(command); };
    try {
        startThread("zelk.open", 256 * 1024, start);
    } catch (const std::system_error&) {
        start();
    }
}

}  // namespace zelk
