// SPDX-License-Identifier: MIT
// The program itself as root: what it starts, and how. In the place of each tool stands a script that records, in that
// of the kernel's file a plain one, and only in the mount namespace of a child.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <exception>
#include <filesystem>
#include <string>
#include <vector>

#include "admin/AdminCommand.h"
#include "fakes/InChild.h"
#include "fakes/Mounts.h"
#include "fakes/TestFiles.h"
#include "zoo/TempFolder.h"

namespace zelk {
namespace {

using Words = std::vector<std::string>;

constexpr int notPossible = 250;

/// Replaces this process by zelk-admin, started as somebody would who means ill.
void startForged(const Words& arguments, const std::string& input, const std::string& output) {
    const int read = ::open(input.c_str(), O_RDONLY);
    const int written = ::open(output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    ::dup2(read, STDIN_FILENO);
    for (const int descriptor : {STDOUT_FILENO, STDERR_FILENO, 9, 700}) ::dup2(written, descriptor);
    if (::chdir("/tmp") != 0) return;
    ::umask(0);
    std::signal(SIGTERM, SIG_IGN);
    sigset_t blocked;
    ::sigfillset(&blocked);
    ::sigprocmask(SIG_SETMASK, &blocked, nullptr);

    std::vector<char*> words{const_cast<char*>(ZELK_ADMIN)};
    for (const std::string& argument : arguments) words.push_back(const_cast<char*>(argument.c_str()));
    words.push_back(nullptr);
    std::string forged[] = {"PATH=/tmp", "IFS=-", "ENV=/tmp/x", "LC_ALL=tlh", "HOME=/nowhere", "PKEXEC_UID=0"};
    std::vector<char*> environment;
    for (std::string& variable : forged) environment.push_back(variable.data());
    environment.push_back(nullptr);
    ::execve(ZELK_ADMIN, words.data(), environment.data());
}

class AdminRoot : public testing::Test {
protected:
    void SetUp() override {
        if (!fakes::inChild([] { return fakes::Mounts().allowed(true) && ::geteuid() == 0; }))
            GTEST_SKIP() << "nothing can be mounted as root here";
        fakes::writeFile(folder / "input", "yes\n");
        fakes::writeFile(tool,
                         "#!/bin/sh\n"
                         "{\n"
                         "  printf '<%s>' \"$0\" \"$@\"; echo\n"
                         "  pwd; umask; readlink /proc/self/fd/0\n"
                         "  tr '\\0' ' ' < /proc/$$/environ; echo\n"
                         "  ls /proc/self/fd | tr '\\n' ' '; echo\n"
                         "  while read -r key mask; do\n"
                         "    case \"$key\" in SigBlk:|SigIgn:) echo $((0x$mask & 0x7fffffff));; esac\n"
                         "  done < /proc/$$/status\n"
                         "} >> " +
                             (folder / "record") +
                             "\n"
                             "echo said\n"
                             "[ \"$6\" = number ] && exit 9\n"
                             "exit 7\n");
        ASSERT_EQ(::chmod(tool.c_str(), 0755), 0);
    }

    /// Has `file` stand at `place` for this process and its children, also where nothing is.
    void put(const std::string& file, const std::filesystem::path& place, fakes::Mounts& mounts) const {
        if (!std::filesystem::exists(place)) {
            // In the place of the folder one with links to all that is in it.
            const std::filesystem::path real = place.parent_path();
            const std::filesystem::path all = folder / "all";
            const std::filesystem::path links = folder / "links";
            for (const auto& made : {all, links}) std::filesystem::create_directory(made);
            mounts.again(real, all);
            for (const auto& entry : std::filesystem::directory_iterator(all))
                std::filesystem::create_symlink(entry.path(), links / entry.path().filename());
            fakes::writeFile(links / place.filename(), "");
            mounts.again(links, real);
        }
        mounts.again(file, place);
    }

    /// The exit status of the program, while `file` stands at `place`.
    int statusAsRoot(const Words& arguments, const std::string& file, const std::string& place) const {
        const pid_t child = ::fork();
        if (child == 0) {
            try {
                fakes::Mounts mounts;
                if (mounts.allowed(true)) {
                    put(file, place, mounts);  // or throws: the real tool must not be started
                    startForged(arguments, folder / "input", folder / "output");
                }
            } catch (const std::exception&) {
            }
            ::_exit(notPossible);
        }
        int status = 0;
        while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
        }
        return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }

    /// Expects that exactly these programs, which are one tool, were started one after the other and as told.
    void expectRecorded(const std::vector<Words>& programs) const {
        std::string environment;
        for (const std::string& variable : adminEnvironment()) environment += variable + " ";
        std::string record;
        std::string output;
        for (const Words& program : programs) {
            for (const std::string& word : program) record += "<" + word + ">";
            // The fourth descriptor is that of ls itself. Of the standard signals none is blocked, and only SIGPIPE is
            // ignored.
            record += "\n/\n0022\n/dev/null\n" + environment + "\n0 1 2 3 \n0\n4096\n";
            output += "said\n";
        }
        EXPECT_EQ(fakes::fileContent(folder / "record"), record);
        EXPECT_EQ(fakes::fileContent(folder / "output"), output);
    }

    const zoo::TempFolder folder;
    const std::string tool = folder / "tool";
};

TEST_F(AdminRoot, removesAPackageByItsTool) {
    const Words arguments{"remove-package", "no-such-package"};
    const std::vector<Words> programs = adminCommand(arguments).programs;
    EXPECT_EQ(statusAsRoot(arguments, tool, programs.at(0).at(0)), 7);
    expectRecorded(programs);
}

TEST_F(AdminRoot, thinsInTwoStepsAndTellsTheStatusOfTheSecond) {
    const Words arguments{"thin-snapshots", "no-such-config"};
    const std::vector<Words> programs = adminCommand(arguments).programs;
    ASSERT_EQ(programs.size(), 2U);
    EXPECT_EQ(statusAsRoot(arguments, tool, programs.at(0).at(0)), 7) << "the first ended with 9";
    expectRecorded(programs);
}

TEST_F(AdminRoot, dropsCachesByTheFileOfTheKernel) {
    fakes::writeFile(folder / "drop_caches", "0\n");
    EXPECT_EQ(statusAsRoot({"free-memory"}, folder / "drop_caches", "/proc/sys/vm/drop_caches"), 0);
    EXPECT_EQ(fakes::fileContent(folder / "drop_caches"), "3\n");
    EXPECT_EQ(fakes::fileContent(folder / "output"), "");
}

TEST_F(AdminRoot, refusesAsRootToo) {
    EXPECT_EQ(statusAsRoot({"delete-snapshot", "no-such-config", "0"}, tool, "/proc/sys/vm/drop_caches"), 64);
    EXPECT_EQ(fakes::fileContent(folder / "record"), "<none>");
}

}  // namespace
}  // namespace zelk
