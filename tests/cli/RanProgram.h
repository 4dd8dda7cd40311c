// SPDX-License-Identifier: MIT
// Runs zelk-survey itself, with a home of its own.
#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "fakes/InChild.h"
#include "fakes/TestFiles.h"
#include "zoo/TempFolder.h"
#include "zoo/Zoo.h"

namespace zelk::cli {

struct Ran {
    int status = -1;  ///< exit status; -1 if a signal killed it
    std::string output;
    std::string errors;
};

class RanProgram : public testing::Test {
protected:
    RanProgram() { zoo::makeFolder(home); }

    /// Starts it; both outputs go to files. `prepare` runs in the child just before, where it may redirect them.
    pid_t start(
        const std::vector<std::string>& words, const std::function<void()>& prepare = [] {}) {
        std::vector<std::string> texts{program};
        texts.insert(texts.end(), words.begin(), words.end());
        std::vector<char*> pointers;
        for (std::string& text : texts) pointers.push_back(text.data());
        pointers.push_back(nullptr);
        const std::string output = temp / "output";
        const std::string errors = temp / "errors";
        std::filesystem::remove(output);
        std::filesystem::remove(errors);
        const pid_t child = ::fork();
        if (child != 0) return child;
        for (const char* name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME", "TERM"})
            ::unsetenv(name);
        ::setenv("HOME", home.c_str(), 1);
        ::setenv("TZ", "UTC", 1);
        // Whoever runs the tests may ignore them, as nohup does.
        for (const int number : {SIGPIPE, SIGINT, SIGTERM, SIGHUP}) ::signal(number, SIG_DFL);
        redirect(0, "/dev/null", O_RDONLY);
        redirect(1, output, O_WRONLY | O_CREAT);
        redirect(2, errors, O_WRONLY | O_CREAT);
        prepare();
        ::execv(program.c_str(), pointers.data());
        ::_exit(127);
    }

    Ran ended(pid_t child) {
        int status = 0;
        while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
        }
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, fakes::fileContent(temp / "output"),
                fakes::fileContent(temp / "errors")};
    }

    /// Returns once `condition` holds; false if the program ends before.
    template <class Condition>
    static bool waitUntil(pid_t child, Condition condition) {
        while (!condition()) {
            siginfo_t gone{};
            if (::waitid(P_PID, static_cast<id_t>(child), &gone, WEXITED | WNOHANG | WNOWAIT) != 0 || gone.si_pid != 0)
                return false;
            ::usleep(1000);
        }
        return true;
    }

    Ran run(
        const std::vector<std::string>& words, const std::function<void()>& prepare = [] {}) {
        return ended(start(words, prepare));
    }

    static void redirect(int descriptor, const std::string& path, int flags) {
        const int opened = ::open(path.c_str(), flags, 0644);
        if (opened < 0 || ::dup2(opened, descriptor) < 0) ::_exit(126);
        if (opened != descriptor) ::close(opened);
    }

    const zoo::TempFolder temp;
    const std::string home = temp / "home";
    const std::string place = temp / "place";  ///< for what is surveyed
    std::string program = ZELK_SURVEY;
};

}  // namespace zelk::cli
