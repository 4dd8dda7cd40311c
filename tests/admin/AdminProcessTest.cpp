// SPDX-License-Identifier: MIT
#include "admin/AdminProcess.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

#include "admin/AdminCommand.h"
#include "fakes/InChild.h"
#include "fakes/OpenDescriptors.h"
#include "fakes/SystemCallGate.h"
#include "fakes/TestFiles.h"
#include "zoo/TempFolder.h"

namespace zelk {
namespace {

using Words = std::vector<std::string>;

Words shell(const std::string& line) {
    return {"/bin/sh", "-c", line};
}

/// From here on the process writes its standard output, or its errors, to a file.
void redirect(int descriptor, const std::string& path) {
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    ::dup2(file, descriptor);
    ::close(file);
}

bool isNullDevice(int descriptor) {
    const int null = ::open("/dev/null", O_RDWR);
    const bool same = fakes::identityOf(descriptor) == fakes::identityOf(null);
    ::close(null);
    return same;
}

TEST(AdminProcess, leavesFolderAndUmaskBehind) {
    const zoo::TempFolder folder;
    EXPECT_TRUE(fakes::inChild([&] {
        if (::chdir(folder.path().c_str()) != 0) return false;
        ::umask(0);
        leaveInheritanceBehind();
        return std::filesystem::current_path() == "/" && ::umask(0) == 022;
    }));
}

TEST(AdminProcess, closesStrayDescriptors) {
    EXPECT_TRUE(fakes::inChild([] {
        const int low = ::dup(STDOUT_FILENO);
        const int high = ::fcntl(STDOUT_FILENO, F_DUPFD, 700);
        const fakes::Identity output = fakes::identityOf(STDOUT_FILENO);
        if (low < 0 || high < 700) return false;
        leaveInheritanceBehind();
        return ::fcntl(low, F_GETFD) == -1 && ::fcntl(high, F_GETFD) == -1 &&
               fakes::identityOf(STDOUT_FILENO) == output;
    }));
}

// Kernels before 5.9 cannot close them in one call.
TEST(AdminProcess, closesStrayDescriptorsOneByOne) {
    EXPECT_TRUE(fakes::inChild([] {
        const int low = ::dup(STDOUT_FILENO);
        const int high = ::fcntl(STDOUT_FILENO, F_DUPFD, 700);
        if (low < 0 || high < 700) return false;
        // What was opened before stays open.
        const rlimit lowered{64, 64};
        if (::setrlimit(RLIMIT_NOFILE, &lowered) != 0) return false;
        if (fakes::filterCalls(SYS_close_range, SECCOMP_RET_ERRNO | ENOSYS) != 0) return false;
        const fakes::Identity output = fakes::identityOf(STDOUT_FILENO);
        leaveInheritanceBehind();
        return ::fcntl(low, F_GETFD) == -1 && ::fcntl(high, F_GETFD) == -1 &&
               fakes::identityOf(STDOUT_FILENO) == output;
    }));
}

TEST(AdminProcess, readsNothing) {
    EXPECT_TRUE(fakes::inChild([] {
        int ends[2];
        if (::pipe(ends) != 0 || ::dup2(ends[0], STDIN_FILENO) != STDIN_FILENO) return false;
        leaveInheritanceBehind();
        return isNullDevice(STDIN_FILENO);
    }));
}

TEST(AdminProcess, opensClosedStreams) {
    for (const std::vector<int>& closed : std::vector<std::vector<int>>{{0}, {1}, {2}, {0, 2}, {0, 1, 2}}) {
        EXPECT_TRUE(fakes::inChild([&] {
            for (const int descriptor : closed) ::close(descriptor);
            leaveInheritanceBehind();
            for (int descriptor = 0; descriptor < 3; ++descriptor)
                if (::fcntl(descriptor, F_GETFD) == -1) return false;
            return std::ranges::all_of(closed, isNullDevice);
        })) << testing::PrintToString(closed);
    }
}

TEST(AdminProcess, hearsOfChildrenDespiteItsParent) {
    EXPECT_TRUE(fakes::inChild([] {
        ::signal(SIGCHLD, SIG_IGN);
        sigset_t all;
        ::sigfillset(&all);
        ::sigprocmask(SIG_SETMASK, &all, nullptr);
        leaveInheritanceBehind();
        sigset_t blocked;
        ::sigprocmask(SIG_SETMASK, nullptr, &blocked);
        return ::sigismember(&blocked, SIGTERM) == 0 && runInTurn({shell("exit 3")}) == 3;
    }));
}

TEST(AdminProcess, ignoresNoSignalThatItsParentIgnored) {
    EXPECT_TRUE(fakes::inChild([] {
        for (int number = 1; number <= SIGRTMAX; ++number) ::signal(number, SIG_IGN);
        leaveInheritanceBehind();
        for (int number = 1; number <= SIGRTMAX; ++number) {
            struct sigaction now {};
            if (::sigaction(number, nullptr, &now) != 0) continue;  // the C library keeps two for itself
            if (now.sa_handler != (number == SIGPIPE ? SIG_IGN : SIG_DFL)) return false;
        }
        return true;
    }));
}

TEST(AdminProcess, finishesForNobodyWhoReads) {
    const zoo::TempFolder folder;
    EXPECT_TRUE(fakes::inChild([&] {
        int ends[2];
        if (::pipe(ends) != 0) return false;
        for (const int stream : {STDOUT_FILENO, STDERR_FILENO}) ::dup2(ends[1], stream);
        ::close(ends[0]);
        leaveInheritanceBehind();
        complain("Nobody hears this.");
        return runInTurn({shell("echo one; echo two; echo ran > " + (folder / "ran"))}) == 0;
    }));
    EXPECT_EQ(fakes::fileContent(folder / "ran"), "ran\n");
}

TEST(AdminProcess, runsEveryProgramAndReturnsTheStatusOfTheLast) {
    const zoo::TempFolder folder;
    const std::string file = folder / "ran";
    const auto step = [&](const std::string& name, const std::string& status) {
        return shell("echo " + name + " >> " + file + "; exit " + status);
    };
    EXPECT_EQ(runInTurn({step("a", "0"), step("b", "0")}), 0);
    EXPECT_EQ(runInTurn({step("c", "1"), step("d", "0")}), 0);
    EXPECT_EQ(runInTurn({step("e", "0"), step("f", "2")}), 2);
    EXPECT_EQ(runInTurn({step("g", "3"), step("h", "2")}), 2);
    EXPECT_EQ(fakes::fileContent(file), "a\nb\nc\nd\ne\nf\ng\nh\n");
    EXPECT_EQ(runInTurn({}), 0);
}

TEST(AdminProcess, deathByASignalIsAStatus) {
    EXPECT_EQ(runInTurn({shell("kill -TERM $$")}), 128 + SIGTERM);
}

TEST(AdminProcess, missingProgramIsSaidAndTheNextRuns) {
    const zoo::TempFolder folder;
    EXPECT_TRUE(fakes::inChild([&] {
        redirect(STDERR_FILENO, folder / "errors");
        const Words missing{"/nowhere/snapper", "-c", "root"};
        return runInTurn({missing, shell("echo ran > " + (folder / "ran"))}) == 0 && runInTurn({missing}) == 127;
    }));
    const std::string complaint = "/nowhere/snapper cannot be started: No such file or directory.\n";
    EXPECT_EQ(fakes::fileContent(folder / "errors"), complaint + complaint);
    EXPECT_EQ(fakes::fileContent(folder / "ran"), "ran\n");
}

TEST(AdminProcess, programsHaveTheFixedEnvironmentAlone) {
    const zoo::TempFolder folder;
    EXPECT_TRUE(fakes::inChild([&] {
        for (const char* name : {"PATH", "LANG", "IFS", "ENV", "ZELK", "DEBIAN_FRONTEND"}) ::setenv(name, "forged", 1);
        redirect(STDOUT_FILENO, folder / "environment");
        return runInTurn({{"/usr/bin/env"}}) == 0;
    }));
    std::string expected;
    for (const std::string& variable : adminEnvironment()) expected += variable + "\n";
    EXPECT_EQ(fakes::fileContent(folder / "environment"), expected);
}

TEST(AdminProcess, argumentsArriveUnchanged) {
    const zoo::TempFolder folder;
    const Words words{"a b", "", "*", "$(id)", ";", "'\"\\", "\xff\n", "-o"};
    Words program = shell("for word; do printf '<%s>' \"$word\"; done");
    program.emplace_back("sh");
    program.insert(program.end(), words.begin(), words.end());
    EXPECT_TRUE(fakes::inChild([&] {
        redirect(STDOUT_FILENO, folder / "words");
        return runInTurn({program}) == 0;
    }));
    std::string expected;
    for (const std::string& word : words) expected += "<" + word + ">";
    EXPECT_EQ(fakes::fileContent(folder / "words"), expected);
}

TEST(AdminProcess, dropsCachesByTheKernelsFile) {
    const zoo::TempFolder folder;
    fakes::writeFile(folder / "drop_caches", "0\n");
    EXPECT_EQ(dropCaches((folder / "drop_caches").c_str()), 0);
    EXPECT_EQ(fakes::fileContent(folder / "drop_caches"), "3\n");
}

TEST(AdminProcess, missingKernelFileIsSaid) {
    const zoo::TempFolder folder;
    EXPECT_TRUE(fakes::inChild([&] {
        redirect(STDERR_FILENO, folder / "errors");
        return dropCaches((folder / "drop_caches").c_str()) == 1;
    }));
    EXPECT_EQ(fakes::fileContent(folder / "errors"), "The caches cannot be dropped: No such file or directory.\n");
    EXPECT_FALSE(std::filesystem::exists(folder / "drop_caches"));
}

TEST(AdminProcess, refusedWriteIsSaid) {
    EXPECT_TRUE(fakes::inChild([] {
        redirect(STDERR_FILENO, "/dev/null");
        return dropCaches("/dev/full") == 1;
    }));
}

}  // namespace
}  // namespace zelk
