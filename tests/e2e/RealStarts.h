// SPDX-License-Identifier: MIT
// Starts the application itself, with a home and a runtime folder of its own.
#pragma once

#include <fcntl.h>
#include <gmock/gmock.h>
#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "fakes/TestFiles.h"
#include "zoo/TempFolder.h"

extern "C" char** environ;

namespace zelk {

class RealStarts : public testing::Test {
protected:
    RealStarts() {
        for (const char* folder : {"home", "runtime", "tmp"}) {
            std::filesystem::create_directory(temp / folder);
            std::filesystem::permissions(temp / folder, std::filesystem::perms::owner_all);
        }
        environment = {{"HOME", temp / "home"},          {"XDG_RUNTIME_DIR", temp / "runtime"},
                       {"TMPDIR", temp / "tmp"},         {"DBUS_SESSION_BUS_ADDRESS", "unix:path=" + temp / "no-bus"},
                       {"QT_QPA_PLATFORM", "offscreen"}, {"QT_QUICK_BACKEND", "software"},
                       {"QML_DISABLE_DISK_CACHE", "1"},  {"LC_ALL", "C.UTF-8"}};
    }
    ~RealStarts() override {
        for (const pid_t child : std::set<pid_t>(children)) end(child, SIGKILL);
    }

    /// The standard error of every process goes to `errors`. `gate` is what it reads to the end before it starts.
    pid_t start(const std::string& gate = "/dev/null") {
        std::vector<std::string> words{"/bin/sh", "-c", "while read -r line; do :; done; exec \"$0\"", ZELK_PROGRAM};
        std::vector<std::string> variables;
        for (const auto& [name, value] : environment) variables.push_back(name + "=" + value);
        for (char** inherited = environ; *inherited != nullptr; ++inherited)
            if (isInherited(*inherited)) variables.emplace_back(*inherited);
        posix_spawn_file_actions_t actions;
        ::posix_spawn_file_actions_init(&actions);
        ::posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, gate.c_str(), O_RDONLY, 0);
        ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, errors.c_str(), O_WRONLY | O_CREAT | O_APPEND,
                                           0644);
        posix_spawnattr_t attributes;
        ::posix_spawnattr_init(&attributes);
        // Whoever runs the tests may ignore them, as nohup does.
        sigset_t usual;
        ::sigemptyset(&usual);
        for (const int number : {SIGPIPE, SIGINT, SIGTERM, SIGHUP}) ::sigaddset(&usual, number);
        ::posix_spawnattr_setsigdefault(&attributes, &usual);
        ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
        pid_t child = -1;
        EXPECT_EQ(::posix_spawn(&child, words[0].c_str(), &actions, &attributes, pointersTo(words).data(),
                                pointersTo(variables).data()),
                  0);
        ::posix_spawnattr_destroy(&attributes);
        ::posix_spawn_file_actions_destroy(&actions);
        children.insert(child);
        return child;
    }
    /// Starts so many that all wait at a gate, and opens it.
    void startTogether(int count) {
        const std::string gate = temp / "gate";
        ASSERT_EQ(::mkfifo(gate.c_str(), 0600), 0);
        // Without anybody who writes, none could open it.
        const int held = ::open(gate.c_str(), O_RDWR | O_CLOEXEC);
        ASSERT_GE(held, 0);
        for (int started = 0; started < count; ++started) start(gate);
        ::close(held);
    }

    /// Waits for the end of a process: its exit status, or the negative number of the signal that killed it.
    int statusOf(pid_t child) {
        int status = 0;
        while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
        }
        children.erase(child);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }
    int end(pid_t child, int signal) {
        ::kill(child, signal);
        ::kill(child, SIGCONT);
        return statusOf(child);
    }
    bool hasEnded(pid_t child) const {
        siginfo_t ended{};
        return ::waitid(P_PID, static_cast<id_t>(child), &ended, WEXITED | WNOHANG | WNOWAIT) != 0 || ended.si_pid != 0;
    }
    /// Waits until all but one have ended, and returns that one and the statuses of the others.
    std::pair<pid_t, std::vector<int>> lastOne() {
        std::vector<int> statuses;
        while (children.size() > 1) {
            siginfo_t ended{};
            EXPECT_EQ(::waitid(P_ALL, 0, &ended, WEXITED | WNOWAIT), 0);
            if (!children.contains(ended.si_pid)) {
                ADD_FAILURE() << "another process has ended: " << ended.si_pid;
                break;
            }
            statuses.push_back(statusOf(ended.si_pid));
        }
        return {*children.begin(), statuses};
    }
    /// Returns once `condition` holds; false if the process ends before.
    template <class Condition>
    bool waitUntil(pid_t child, Condition condition) const {
        while (!condition()) {
            if (hasEnded(child)) return false;
            ::usleep(1000);
        }
        return true;
    }
    /// Whether a process takes requests at this socket, or whoever made it has ended.
    static bool listens(const std::string& path) {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        path.copy(static_cast<char*>(address.sun_path), sizeof(address.sun_path) - 1);
        const int caller = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
        const int status = ::connect(caller, reinterpret_cast<const sockaddr*>(&address), sizeof(address));
        ::close(caller);
        return status == 0;
    }
    std::string said() const { return std::filesystem::exists(errors) ? fakes::fileContent(errors) : ""; }

    /// The processes with this test's home in their environment.
    std::vector<std::string> running() const {
        std::vector<std::string> found;
        for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
            if (entry.path().filename().string().find_first_not_of("0123456789") != std::string::npos) continue;
            const std::string variables = fakes::fileContent(entry.path() / "environ");
            if (variables.find("HOME=" + temp / "home") == std::string::npos) continue;
            found.push_back(fakes::fileContent(entry.path() / "cmdline"));
        }
        return found;
    }

    const zoo::TempFolder temp;
    const std::string errors = temp / "errors";
    std::map<std::string, std::string> environment;

private:
    /// Whether a variable of this process is passed on: where programs are, and what sanitizers are told.
    /// Not what the test has set: of a name that is there twice the shell passes on the last.
    bool isInherited(std::string_view variable) const {
        const std::string name(variable.substr(0, variable.find('=')));
        return (name == "PATH" || name.ends_with("SAN_OPTIONS")) && !environment.contains(name);
    }
    static std::vector<char*> pointersTo(std::vector<std::string>& texts) {
        std::vector<char*> pointers;
        for (std::string& text : texts) pointers.push_back(text.data());
        pointers.push_back(nullptr);
        return pointers;
    }

    std::set<pid_t> children;
};

}  // namespace zelk
