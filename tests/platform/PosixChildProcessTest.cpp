// SPDX-License-Identifier: MIT
#include "platform/posix/PosixChildProcess.h"

#include <gmock/gmock.h>
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

ChildOutcome shell(const std::string& line, const ChildStreams& streams = {}) {
    return PosixChildProcess().run("/bin/sh", {"-c", line}, streams);
}

constexpr ChildStreams emptyInput{false, true, false};
constexpr ChildStreams droppedErrors{true, false, false};
constexpr ChildStreams readMeanwhile{true, true, true};
constexpr ChildStreams allOfThem{false, false, true};

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

TEST(PosixChildProcess, givesChildAnotherPath) {
    const fakes::EnvironmentVariable inherited("PATH", "/inherited");
    const fakes::EnvironmentVariable kept("ZELK_KEPT", "yes");
    const std::string variables = PosixChildProcess("/nowhere:/usr/bin").run("/usr/bin/env", {}).output;
    EXPECT_THAT(variables, testing::HasSubstr("PATH=/nowhere:/usr/bin\n"));
    EXPECT_THAT(variables, testing::HasSubstr("ZELK_KEPT=yes\n"));
    EXPECT_THAT(variables, testing::Not(testing::HasSubstr("/inherited")));
}

TEST(PosixChildProcess, findsToolsBehindEnvOnTheGivenPath) {
    const zoo::TempFolder folder;
    fakes::writeFile(folder / "zelk-tool", "#!/bin/sh\necho found\n");
    ASSERT_EQ(::chmod((folder / "zelk-tool").c_str(), 0755), 0);
    EXPECT_EQ(PosixChildProcess("/usr/bin:" + folder.path()).run("/usr/bin/env", {"zelk-tool"}).output, "found\n");
    EXPECT_EQ(PosixChildProcess("/usr/bin").run("/usr/bin/env", {"zelk-tool"}).exitStatus, 127);
}

TEST(PosixChildProcess, givesChildThatInheritsNoPathTheOther) {
    const fakes::EnvironmentVariable withoutPath("PATH", std::nullopt);
    EXPECT_THAT(PosixChildProcess("/usr/bin").run("/usr/bin/env", {}).output, testing::HasSubstr("PATH=/usr/bin\n"));
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

TEST(PosixChildProcess, statusIsKnownOnceChildrenAreNotIgnored) {
    EXPECT_TRUE(fakes::inChild([] {
        ::signal(SIGCHLD, SIG_IGN);
        stopIgnoringChildren();
        return shell("exit 7").exitStatus == 7 && shell(":").exitStatus == 0;
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

TEST(PosixChildProcess, streamsAreMergedAndInheritedUnlessToldOtherwise) {
    EXPECT_EQ(ChildStreams{}, (ChildStreams{true, true, false}));
    EXPECT_TRUE(fakes::inChild([] {
        int ends[2];
        if (::pipe(ends) != 0 || ::dup2(ends[0], STDIN_FILENO) < 0 || ::write(ends[1], "in", 2) != 2) return false;
        ::close(ends[1]);
        return PosixChildProcess().run("/bin/sh", {"-c", "cat; echo error >&2"}).output == "inerror\n";
    }));
}

TEST(PosixChildProcess, inputIsEmptyIfNotInherited) {
    EXPECT_TRUE(fakes::inChild([] {
        int ends[2];
        if (::pipe(ends) != 0 || ::dup2(ends[0], STDIN_FILENO) < 0 || ::write(ends[1], "in", 2) != 2) return false;
        ::close(ends[1]);
        const ChildOutcome outcome = shell("cat", emptyInput);
        return outcome.exitStatus == 0 && outcome.output.empty();
    }));
    EXPECT_EQ(shell("test /dev/stdin -ef /dev/null; echo $?; echo error >&2", emptyInput).output, "0\nerror\n");
}

TEST(PosixChildProcess, inputIsEmptyWhereThisProcessHasNone) {
    EXPECT_TRUE(fakes::inChild([] {
        for (int descriptor = 0; descriptor < 3; ++descriptor) ::close(descriptor);
        for (const ChildStreams& streams : {emptyInput, allOfThem}) {
            const ChildOutcome outcome = shell("cat; echo out", streams);
            if (outcome.exitStatus != 0 || outcome.output != "out\n") return false;
        }
        return true;
    }));
}

TEST(PosixChildProcess, dropsErrorsAlone) {
    for (const ChildStreams& streams : {droppedErrors, allOfThem}) {
        const ChildOutcome outcome = shell("echo out; echo error >&2; echo again; exit 5", streams);
        EXPECT_EQ(outcome.output, "out\nagain\n");
        EXPECT_EQ(outcome.exitStatus, 5);
    }
    EXPECT_EQ(shell("test /dev/stderr -ef /dev/null; echo $?", droppedErrors).output, "0\n");
}

TEST(PosixChildProcess, dropsErrorsWhereThisProcessHasNoStreams) {
    // The first descriptor that is closed becomes the reading end of the pipe, the next one the writing end.
    for (const int first : {0, 1}) {
        EXPECT_TRUE(fakes::inChild([first] {
            for (int descriptor = first; descriptor < 3; ++descriptor) ::close(descriptor);
            return shell("echo out; echo error >&2", droppedErrors).output == "out\n";
        })) << first;
    }
}

TEST(PosixChildProcess, drainsWhatAPipeDoesNotHold) {
    constexpr std::size_t bytes = 1'000'000;  // pipes hold 64 KiB
    const std::string program = "head -c " + std::to_string(bytes) + " /dev/zero | tr '\\0' x";
    for (const ChildStreams& streams : {readMeanwhile, allOfThem}) {
        const ChildOutcome outcome = shell(program + "; exit 7", streams);
        EXPECT_EQ(outcome.output, std::string(bytes, 'x'));
        EXPECT_EQ(outcome.exitStatus, 7);
    }
    EXPECT_EQ(shell("(" + program + ") >&2", readMeanwhile).output.size(), bytes);
    EXPECT_EQ(shell("(" + program + ") >&2; echo out", allOfThem).output, "out\n");
}

TEST(PosixChildProcess, waitsForProgramThatClosedItsOutput) {
    const ChildOutcome outcome =
        shell("echo out; exec >&- 2>&-; i=0; while [ $i -lt 20000 ]; do i=$((i+1)); done; exit 9", readMeanwhile);
    EXPECT_EQ(outcome.exitStatus, 9);
    EXPECT_EQ(outcome.output, "out\n");
}

TEST(PosixChildProcess, returnsSignalNumberWhileReading) {
    const ChildOutcome outcome = shell("echo before; kill -TERM $$", readMeanwhile);
    EXPECT_EQ(outcome.exitStatus, SIGTERM);
    EXPECT_EQ(outcome.output, "before\n");
}

TEST(PosixChildProcess, failsToLaunchWithAnyStreams) {
    const std::ptrdiff_t before = fakes::openDescriptors();
    for (const ChildStreams& streams : {emptyInput, droppedErrors, readMeanwhile, allOfThem}) {
        const ChildOutcome outcome = PosixChildProcess().run("/nowhere/tool", {}, streams);
        EXPECT_EQ(outcome.launchFailure, std::strerror(ENOENT));
        EXPECT_EQ(outcome.output, "");
    }
    EXPECT_EQ(fakes::openDescriptors(), before);
}

TEST(PosixChildProcess, otherStreamsLeaveNoDescriptors) {
    const std::ptrdiff_t before = fakes::openDescriptors();
    const zoo::TempFolder folder;
    for (const ChildStreams& streams : {emptyInput, droppedErrors, readMeanwhile, allOfThem}) {
        shell("ls /dev/fd/ > " + (folder / "list"), streams);
        EXPECT_EQ(fakes::fileContent(folder / "list"), "0\n1\n2\n3\n");
    }
    EXPECT_EQ(fakes::openDescriptors(), before);
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
