// SPDX-License-Identifier: MIT
#include "platform/posix/PosixChildProcess.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <thread>

#include "fakes/Environment.h"
#include "fakes/InChild.h"
#include "fakes/OpenDescriptors.h"
#include "fakes/TestFiles.h"
#include "zoo/TempFolder.h"

namespace zelk {
namespace {

ChildOutcome shell(const std::string& line) {
    return PosixChildProcess().run("/bin/sh", {"-c", line});
}

TEST(PosixChildProcess, mergesBothOutputs) {
    const ChildOutcome outcome = shell("echo out; echo error >&2; echo again");
    EXPECT_EQ(outcome.launchFailure, std::nullopt);
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.output, "out\nerror\nagain\n");
}

TEST(PosixChildProcess, acceptsSilentProgram) {
    const ChildOutcome outcome = shell(":");
    EXPECT_EQ(outcome.launchFailure, std::nullopt);
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.output, "");
}

TEST(PosixChildProcess, returnsExitStatus) {
    EXPECT_EQ(shell("exit 101").exitStatus, 101);
    EXPECT_EQ(shell("exit 255").exitStatus, 255);
}

TEST(PosixChildProcess, returnsSignalNumber) {
    const ChildOutcome outcome = shell("echo before; kill -TERM $$");
    EXPECT_EQ(outcome.exitStatus, SIGTERM);
    EXPECT_EQ(outcome.output, "before\n");
}

TEST(PosixChildProcess, passesArgumentsUnchanged) {
    const std::vector<std::string> words{"a b", "", "*", "'\"$HOME\\", "\xff\n"};
    std::vector<std::string> arguments{"-c", "for word; do printf '<%s>' \"$word\"; done", "sh"};
    arguments.insert(arguments.end(), words.begin(), words.end());
    std::string expected;
    for (const std::string& word : words) expected += "<" + word + ">";
    EXPECT_EQ(PosixChildProcess().run("/bin/sh", arguments).output, expected);
}

TEST(PosixChildProcess, returnsOutputThatIsNotUtf8) {
    EXPECT_EQ(shell("printf 'a\\000b\\377'").output, std::string("a\0b\xff", 4));
}

TEST(PosixChildProcess, missingProgramFailsToLaunch) {
    const ChildOutcome outcome = PosixChildProcess().run("/nowhere/tool", {});
    EXPECT_EQ(outcome.launchFailure, std::strerror(ENOENT));
    EXPECT_EQ(outcome.output, "");
}

TEST(PosixChildProcess, forbiddenProgramFailsToLaunch) {
    const zoo::TempFolder folder;
    fakes::writeFile(folder / "tool", "#!/bin/sh\n");
    EXPECT_EQ(PosixChildProcess().run(folder / "tool", {}).launchFailure, std::strerror(EACCES));
    EXPECT_EQ(PosixChildProcess().run(folder.path(), {}).launchFailure, std::strerror(EACCES));
}

TEST(PosixChildProcess, nonProgramIsNotRunByAShell) {
    const zoo::TempFolder folder;
    fakes::writeFile(folder / "tool", "echo ran\n");
    ASSERT_EQ(::chmod((folder / "tool").c_str(), 0755), 0);
    const ChildOutcome outcome = PosixChildProcess().run(folder / "tool", {});
    EXPECT_EQ(outcome.launchFailure, std::strerror(ENOEXEC));
    EXPECT_EQ(outcome.output, "");
}

TEST(PosixChildProcess, executableIsNotSearchedOnPath) {
    EXPECT_EQ(PosixChildProcess().run("sh", {"-c", ":"}).launchFailure, std::strerror(ENOENT));
}

TEST(PosixChildProcess, missingToolBehindEnvReturns127) {
    const ChildOutcome outcome = PosixChildProcess().run("/usr/bin/env", {"zelk-has-no-such-tool", "clean"});
    EXPECT_EQ(outcome.launchFailure, std::nullopt);
    EXPECT_EQ(outcome.exitStatus, 127);
    EXPECT_NE(outcome.output.find("zelk-has-no-such-tool"), std::string::npos);
}

TEST(PosixChildProcess, inheritsEnvironmentAndWorkingDirectory) {
    const fakes::EnvironmentVariable variable("ZELK_CHILD_TEST", "as it stands");
    EXPECT_EQ(shell("printf %s \"$ZELK_CHILD_TEST\"").output, "as it stands");
    EXPECT_EQ(shell("pwd -P").output, std::filesystem::current_path().string() + "\n");
}

TEST(PosixChildProcess, childHasOnlyStandardDescriptors) {
    const zoo::TempFolder folder;
    EXPECT_EQ(shell("ls /dev/fd/ > " + (folder / "list") + " 3>&-; grep -c . " + (folder / "list")).exitStatus, 0);
    // The fourth is that of listing the folder.
    EXPECT_EQ(fakes::fileContent(folder / "list"), "0\n1\n2\n3\n");
}

TEST(PosixChildProcess, leaksNoDescriptor) {
    const std::ptrdiff_t before = fakes::openDescriptors();
    shell("echo");
    PosixChildProcess().run("/nowhere/tool", {});
    EXPECT_EQ(fakes::openDescriptors(), before);
}

TEST(PosixChildProcess, failsWithoutFreeDescriptors) {
    EXPECT_TRUE(fakes::inChild([] {
        shell(":");  // a sanitizer needs descriptors the first time it sees a type
        while (::dup(0) >= 0) {
        }
        return shell(":").launchFailure == std::strerror(EMFILE);
    }));
}

TEST(PosixChildProcess, worksWithClosedStandardOutputs) {
    EXPECT_TRUE(fakes::inChild([] {
        for (int descriptor = 0; descriptor < 3; ++descriptor) ::close(descriptor);
        const ChildOutcome outcome = shell("echo out; echo error >&2");
        return outcome.exitStatus == 0 && outcome.output == "out\nerror\n";
    }));
}

TEST(PosixChildProcess, ignoredChildHasUnknownStatus) {
    EXPECT_TRUE(fakes::inChild([] {
        ::signal(SIGCHLD, SIG_IGN);
        const ChildOutcome outcome = shell("echo out");
        return outcome.exitStatus == -1 && outcome.output == "out\n";
    }));
}

TEST(PosixChildProcess, survivesSignalWhileWaiting) {
    EXPECT_TRUE(fakes::inChild([] {
        struct sigaction interrupting {};
        interrupting.sa_handler = [](int) {};  // without SA_RESTART
        ::sigaction(SIGUSR1, &interrupting, nullptr);
        const ChildOutcome outcome = shell("kill -USR1 $PPID; kill -USR1 $PPID; echo out; exit 3");
        return outcome.exitStatus == 3 && outcome.output == "out\n";
    }));
}

// The tool writes until the pipe is full, which would never happen if anybody read meanwhile.
TEST(PosixChildProcess, readsOutputOnlyAfterExit) {
    const zoo::TempFolder folder;
    const std::string program =
        "import os, sys\n"
        "os.set_blocking(1, False)\n"
        "written = 0\n"
        "try:\n"
        "    while written < 1 << 24: written += os.write(1, b'x' * 4096)\n"
        "except BlockingIOError: pass\n"
        "open(sys.argv[1], 'w').write(str(written))\n";
    const ChildOutcome outcome =
        PosixChildProcess().run("/usr/bin/env", {"python3", "-c", program, folder / "written"});
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(std::to_string(outcome.output.size()), fakes::fileContent(folder / "written"));
    EXPECT_LE(outcome.output.size(), 1U << 16);
}

TEST(PosixChildProcess, runsManyConcurrently) {
    std::vector<std::thread> threads;
    std::vector<ChildOutcome> outcomes(40);
    for (std::size_t number = 0; number < outcomes.size(); ++number) {
        threads.emplace_back([&, number] {
            outcomes[number] = shell("echo " + std::to_string(number) + "; exit " + std::to_string(number));
        });
    }
    for (std::thread& thread : threads) thread.join();
    for (std::size_t number = 0; number < outcomes.size(); ++number) {
        EXPECT_EQ(outcomes[number].exitStatus, static_cast<int>(number));
        EXPECT_EQ(outcomes[number].output, std::to_string(number) + "\n");
    }
}

}  // namespace
}  // namespace zelk
