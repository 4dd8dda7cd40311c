// SPDX-License-Identifier: MIT
// Asks a host that is played by this machine, or by something worse.
#include "platform/linux/apps/HostQuestion.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <signal.h>
#include <spawn.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>

#include "fakes/Environment.h"
#include "fakes/TestFiles.h"
#include "platform/linux/AbsentTools.h"
#include "platform/posix/PosixChildProcess.h"
#include "zoo/TempFolder.h"

namespace zelk {
namespace {

using testing::Contains;
using testing::ElementsAre;

/// Stands for flatpak-spawn: runs what it is told to, or another line of the shell.
class PlayedHost : public ChildProcess {
public:
    std::optional<std::string> instead;
    std::optional<double> seconds;  ///< instead of those of the question
    std::optional<uid_t> user;      ///< who has the shell, and asks for what is theirs; else whoever runs this
    std::vector<std::string> options;

    using ChildProcess::run;
    ChildOutcome run(const std::string& executable, const std::vector<std::string>& arguments,
                     const ChildStreams& streams) override {
        EXPECT_EQ(executable, "/usr/bin/flatpak-spawn");
        EXPECT_EQ(streams.limit, hostLimit);
        const auto program = std::find(arguments.begin(), arguments.end(), "/bin/sh");
        options.assign(arguments.begin(), program);
        if (program == arguments.end()) return {"no program", 0, {}};
        ChildStreams limited = streams;
        if (seconds) limited.limit->seconds = *seconds;
        if (instead) return PosixChildProcess().run("/bin/sh", {"-c", *instead}, limited);
        std::vector<std::string> words(program, arguments.end());
        if (user) {
            words.back() = std::to_string(*user);
            words.insert(words.begin(), {"/usr/bin/setpriv", "--reuid=" + words.back(), "--clear-groups"});
        }
        return PosixChildProcess().run(words.front(), {words.begin() + 1, words.end()}, limited);
    }
};

class HostQuestions : public testing::Test {
protected:
    HostQuestions() {
        std::filesystem::create_directories(data / "applications/sub");
        std::filesystem::copy_file("/bin/sleep", program);
        fakes::writeFile(data / "applications/sub/test.desktop",
                         "# A comment\n[Desktop Entry]\nType=Application\nName=The program\nName[de]=Das Programm\n"
                         "Comment=Name=Other\nExec=\"" +
                             program + "\" %U\n");
        std::filesystem::create_symlink("sub/test.desktop", data / "applications/link.desktop");
    }
    ~HostQuestions() override {
        if (running_ == 0) return;
        ::kill(running_, SIGKILL);
        ::waitpid(running_, nullptr, 0);
    }

    void start() {
        std::string argument = "600";
        std::string path = program;
        char* const arguments[] = {path.data(), argument.data(), nullptr};
        ASSERT_EQ(::posix_spawn(&running_, program.c_str(), nullptr, nullptr, arguments, environ), 0);
    }
    /// Starts a process that lets nobody look into it: the kernel gives its files in /proc to root. If that is who runs
    /// this, the process is somebody else's.
    void startSecretive() {
        if (::geteuid() == 0) host.user = nobody;
        std::filesystem::permissions(data.path(), std::filesystem::perms(0755));
        const std::string name(std::strlen(program_invocation_name), 'z');
        fakes::writeFile(data / "applications/secretive.desktop",
                         "[Desktop Entry]\nType=Application\nName=Secretive\nExec=" + name + "\n");
        std::array<int, 2> ends{};
        ASSERT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
        running_ = ::fork();
        if (running_ == 0) {
            std::memset(program_invocation_name, 'z', name.size());  // its first argument, as others see it
            if ((host.user && ::setuid(*host.user) != 0) || ::prctl(PR_SET_DUMPABLE, 0) != 0) ::_exit(1);
            if (::write(ends[1], "", 1) != 1) ::_exit(1);
            for (;;) ::pause();
        }
        ::close(ends[1]);
        char byte = 0;
        EXPECT_EQ(::read(ends[0], &byte, 1), 1);
        ::close(ends[0]);
        struct stat status {};
        ASSERT_EQ(::lstat(("/proc/" + std::to_string(running_) + "/exe").c_str(), &status), 0);
        ASSERT_EQ(status.st_uid, 0U);
    }
    std::optional<RunningApplications> ask(const std::vector<std::string>& locales = {}) {
        return askHost(host, locales);
    }

    const zoo::TempFolder data;
    // A name of its own, since another process of these tests may run meanwhile.
    const std::string program = data / ("program of tests " + std::to_string(::getpid()));
    const fakes::EnvironmentVariable shared{"XDG_DATA_DIRS", "relative:" + data.path() + ":" + data.path()};
    PlayedHost host;

private:
    static constexpr uid_t nobody = 65534;

    pid_t running_ = 0;
};

TEST_F(HostQuestions, findWhatRunsByARealShell) {
    start();
    const auto running = ask();
    ASSERT_TRUE(running);
    EXPECT_THAT(running->names, Contains("The program"));
    EXPECT_THAT(running->ids, Contains("sub-test"));
    EXPECT_THAT(running->ids, Contains("link")) << "flatpak exports links";
    EXPECT_THAT(ask({"de"})->names, Contains("Das Programm"));
}

TEST_F(HostQuestions, findWhatLetsNobodyLookIntoIt) {
    startSecretive();
    const auto running = ask();
    ASSERT_TRUE(running);
    EXPECT_THAT(running->names, Contains("Secretive"));
}

TEST_F(HostQuestions, findNothingThatDoesNotRun) {
    const auto running = ask();
    ASSERT_TRUE(running);
    EXPECT_THAT(running->names, testing::Not(Contains("The program")));
}

TEST_F(HostQuestions, readEntriesAndNothingElse) {
    start();
    fakes::writeFile(data / "applications/notes.txt",
                     "[Desktop Entry]\nType=Application\nName=No entry\nExec=\"" + program + "\"\n");
    ASSERT_EQ(::mkfifo((data / "applications/pipe.desktop").c_str(), 0600), 0);
    const auto running = ask();
    ASSERT_TRUE(running) << "nobody ever writes to the pipe";
    EXPECT_THAT(running->names, Contains("The program"));
    EXPECT_THAT(running->names, testing::Not(Contains("No entry")));
}

TEST_F(HostQuestions, goToTheHostAndEndWithTheOneWhoAsks) {
    ask();
    EXPECT_THAT(host.options, ElementsAre("--host", "--watch-bus", "--directory=/"));
}

TEST_F(HostQuestions, haveNoAnswerFromAShellWithoutTools) {
    const fakes::EnvironmentVariable nowhere("PATH", data / "nowhere");
    EXPECT_FALSE(ask());
}

TEST_F(HostQuestions, haveNoAnswerFromAHostThatSaysSomethingElse) {
    for (const char* line : {":", "exit 1", "echo", "echo Portal call failed; exit 1", "head -c 100000 /dev/urandom",
                             "printf '7\\000\\000\\000\\000\\000\\000end\\n'", "kill -KILL $$", "kill -TERM $$"}) {
        host.instead = line;
        EXPECT_FALSE(ask()) << line;
    }
}

TEST_F(HostQuestions, haveNoAnswerFromAHostThatFailsInTheEnd) {
    start();
    zoo::TempFolder folder;
    ASSERT_TRUE(ask());
    class Failing : public PlayedHost {
    public:
        using ChildProcess::run;
        ChildOutcome run(const std::string& executable, const std::vector<std::string>& arguments,
                         const ChildStreams& streams) override {
            ChildOutcome outcome = PlayedHost::run(executable, arguments, streams);
            outcome.exitStatus = 1;
            return outcome;
        }
    } failing;
    EXPECT_FALSE(askHost(failing, {}));
}

TEST_F(HostQuestions, haveNoAnswerFromAHostThatHangs) {
    host.seconds = 0.05;
    for (const char* line : {"exec sleep 600", "sleep 3 & wait", "exec >&- 2>&-; exec sleep 600"}) {
        host.instead = line;
        EXPECT_FALSE(ask()) << line;
    }
}

TEST_F(HostQuestions, haveNoAnswerFromAHostThatNeverStops) {
    host.instead = "exec yes";
    EXPECT_FALSE(ask());
}

TEST_F(HostQuestions, haveNoAnswerWithoutTheSpawner) {
    AbsentTools tools;
    EXPECT_FALSE(askHost(tools, {}));
}

TEST(AbsentToolsOfASandbox, sayWhichIsMissing) {
    AbsentTools tools;
    const auto failureOf = [&](const std::string& executable, const std::vector<std::string>& arguments) {
        const ChildOutcome outcome = tools.run(executable, arguments);
        EXPECT_EQ(outcome.output, "");
        return outcome.launchFailure.value_or("none");
    };
    EXPECT_EQ(failureOf("/usr/bin/pkexec", {"--disable-internal-agent", "/bin/sh"}),
              "Flatpak’s sandbox has no pkexec.");
    EXPECT_EQ(failureOf("/usr/bin/env", {"npm", "cache", "clean", "--force"}), "Flatpak’s sandbox has no npm.");
    EXPECT_EQ(failureOf("/usr/bin/env", {"LC_ALL=C", "/bin/sh", "-c", "x"}), "Flatpak’s sandbox has no sh.");
    EXPECT_EQ(failureOf("/usr/bin/env", {}), "Flatpak’s sandbox has no env.");
}

TEST(AbsentToolsOfASandbox, runNothingOfTheRuntime) {
    const zoo::TempFolder folder;
    EXPECT_TRUE(AbsentTools().run("/bin/sh", {"-c", ": >" + (folder / "ran")}).launchFailure);
    EXPECT_FALSE(std::filesystem::exists(folder / "ran"));
}

}  // namespace
}  // namespace zelk
