// SPDX-License-Identifier: MIT
#pragma once

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDBusConnection>
#include <QString>
#include <array>
#include <string>

namespace zelk::fakes {

/// A private session bus.
class SessionBus {
public:
    /// `configuration` is the option that says which one the daemon reads.
    explicit SessionBus(std::string configuration = "--session") {
        std::array<int, 2> ends{};
        if (::pipe(ends.data()) != 0) return;
        const std::string descriptor = std::to_string(ends[1]);
        std::string program = "dbus-daemon";
        std::string address = "--print-address=" + descriptor;
        std::string foreground = "--nofork";
        std::array<char*, 5> words{program.data(), configuration.data(), address.data(), foreground.data(), nullptr};
        // If this process crashed, whoever waits for its output would otherwise wait for the bus too.
        posix_spawn_file_actions_t actions;
        ::posix_spawn_file_actions_init(&actions);
        for (const int output : {1, 2}) ::posix_spawn_file_actions_addopen(&actions, output, "/dev/null", O_WRONLY, 0);
        const int error = ::posix_spawnp(&process_, words[0], &actions, nullptr, words.data(), environ);
        ::posix_spawn_file_actions_destroy(&actions);
        ::close(ends[1]);
        char c = 0;
        while (error == 0 && ::read(ends[0], &c, 1) == 1 && c != '\n') address_ += c;
        ::close(ends[0]);
    }
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;
    ~SessionBus() {
        if (process_ == 0) return;
        ::kill(process_, SIGTERM);
        ::waitpid(process_, nullptr, 0);
    }

    const std::string& address() const { return address_; }

    QDBusConnection connect(const char* name) const {
        return QDBusConnection::connectToBus(QString::fromStdString(address_), QString::fromLatin1(name));
    }

private:
    pid_t process_ = 0;
    std::string address_;
};

}  // namespace zelk::fakes
