// SPDX-License-Identifier: MIT
// The texts of real children: what would ask for an administrator is replaced by a program that does not.
#include <gmock/gmock.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <functional>

#include "fakes/FakePlatform.h"
#include "fakes/InChild.h"
#include "platform/posix/PosixChildProcess.h"
#include "system/MaintenanceLines.h"
#include "system/PrivilegedCommands.h"

#ifdef __linux__
#include <sys/prctl.h>
#endif

namespace zelk {
namespace {

/// Starts another program in the place of the one that is asked for, with the same streams.
class StandIns : public ChildProcess {
public:
    struct Program {
        std::string executable;
        std::vector<std::string> arguments;
    };

    /// Gets the arguments of what is asked for.
    std::function<Program(const std::vector<std::string>&)> standIn;

    void standInIsShell(const std::string& line) {
        standIn = [line](const auto&) { return Program{"/bin/sh", {"-c", line}}; };
    }

    using ChildProcess::run;
    ChildOutcome run(const std::string&, const std::vector<std::string>& arguments,
                     const ChildStreams& streams) override {
        const Program program = standIn(arguments);
        return PosixChildProcess().run(program.executable, program.arguments, streams);
    }
};

Platform withProcesses(const Platform& platform, ChildProcess& processes) {
    return {platform.clock, platform.directories, platform.files,     platform.contents,
            platform.trash, platform.vitals,      platform.locations, platform.tasks,
            processes,      platform.workspace,   platform.system};
}

class PrivilegedChildren : public testing::TestWithParam<SystemKind> {
protected:
    PrivilegedChildren() { machine.system = GetParam(); }

    PrivilegedCommands commands() { return PrivilegedCommands(withProcesses(machine.platform(), processes)); }
    std::string run(const std::string& shell) {
        processes.standInIsShell(shell);
        return commands().run(freeMemoryLine(GetParam()));
    }
    std::string runAdmin(const std::string& shell) {
        processes.standInIsShell(shell);
        return commands().runAdmin(freeMemoryLine(GetParam()));
    }

    fakes::FakePlatform machine;
    StandIns processes;
};

TEST_P(PrivilegedChildren, successWithOutput) {
    EXPECT_EQ(run("echo out"), "out\n");
    EXPECT_EQ(runAdmin("echo out"), "out\n");
}

TEST_P(PrivilegedChildren, successWithoutOutput) {
    EXPECT_EQ(run(":"), "done");
    EXPECT_EQ(runAdmin(":"), "");
}

TEST_P(PrivilegedChildren, successOnTheErrorStreamAlone) {
    EXPECT_EQ(run("echo warning >&2"), "warning\n");
    EXPECT_EQ(runAdmin("echo warning >&2"), "warning\n");
}

TEST_P(PrivilegedChildren, failure) {
    for (const char* status : {"1", "126", "127", "64", "255"}) {
        const std::string line = std::string("echo out; echo why >&2; exit ") + status;
        EXPECT_EQ(run(line), "cancelled") << status;
        EXPECT_EQ(runAdmin(line), "cancelled or failed: out\nwhy\n") << status;
    }
    EXPECT_EQ(runAdmin("exit 1"), "cancelled or failed: ");
}

TEST_P(PrivilegedChildren, deathByASignal) {
    EXPECT_EQ(run("echo before; kill -KILL $$"), "cancelled");
    EXPECT_EQ(runAdmin("echo before; kill -KILL $$"), "cancelled or failed: before\n");
}

TEST_P(PrivilegedChildren, outputThatFillsAPipe) {
    const std::string line = "head -c 65536 /dev/zero | tr '\\0' x";
    EXPECT_EQ(run(line), std::string(65536, 'x'));
    EXPECT_EQ(runAdmin(line + "; exit 1"), "cancelled or failed: " + std::string(65536, 'x'));
}

TEST_P(PrivilegedChildren, outputThatIsNotUtf8) {
    EXPECT_EQ(run("printf 'a\\377'"), "done");
    EXPECT_EQ(runAdmin("printf 'a\\377'"), "");
    EXPECT_EQ(run("printf '\\377'; exit 1"), "cancelled");
    EXPECT_EQ(runAdmin("printf '\\377'; exit 1"), "cancelled or failed: ");
}

TEST_P(PrivilegedChildren, bothStreamsInterleaved) {
    const std::string line = "echo 1; echo 2 >&2; echo 3; echo 4 >&2";
    EXPECT_EQ(run(line), "1\n2\n3\n4\n");
    EXPECT_EQ(runAdmin(line + "; exit 3"), "cancelled or failed: 1\n2\n3\n4\n");
}

TEST_P(PrivilegedChildren, lineOfTwoCommandsHasTheStatusOfTheLast) {
    EXPECT_EQ(run("echo out; false; true"), "out\n");
    EXPECT_EQ(run("echo out; true; false"), "cancelled");
}

TEST_P(PrivilegedChildren, programThatCannotBeStarted) {
    processes.standIn = [](const auto&) { return StandIns::Program{"/nowhere/tool", {}}; };
    const std::string text = std::string("failed: ") + std::strerror(ENOENT);
    EXPECT_EQ(commands().run(freeMemoryLine(GetParam())), text);
    EXPECT_EQ(commands().runAdmin(freeMemoryLine(GetParam())), text);
}

INSTANTIATE_TEST_SUITE_P(Systems, PrivilegedChildren, testing::Values(SystemKind::macOS, SystemKind::desktopLinux),
                         [](const auto& system) {
                             return system.param == SystemKind::macOS ? std::string("macOS") : std::string("Linux");
                         });

class PrivilegedLines : public testing::Test {
protected:
    PrivilegedCommands commandsOn(SystemKind system) {
        machine.system = system;
        return PrivilegedCommands(withProcesses(machine.platform(), processes));
    }

    fakes::FakePlatform machine;
    StandIns processes;
};

/// What the shell gets of a script of one string, as AppleScript reads it: a backslash makes what follows plain, a
/// quote ends it. Says what is wrong with any other script.
std::string lineInScript(std::string_view script) {
    constexpr std::string_view before = "do shell script \"";
    constexpr std::string_view after = " with administrator privileges";
    if (!script.starts_with(before)) return "echo no shell script";
    script.remove_prefix(before.size());
    std::string line;
    while (!script.empty() && script.front() != '"') {
        if (script.front() == '\\') script.remove_prefix(1);
        line += script.front();
        script.remove_prefix(1);
    }
    return script.substr(0, 1) == "\"" && script.substr(1) == after ? line : "echo syntax error >&2; exit 1";
}

TEST_F(PrivilegedLines, quotesReachTheShellOnMacOS) {
    processes.standIn = [](const auto& arguments) {
        return StandIns::Program{"/bin/sh", {"-c", lineInScript(arguments.back())}};
    };
    EXPECT_EQ(commandsOn(SystemKind::macOS).run("printf '<%s>' \"a  b\" \"\" c"), "<a  b><><c>");
    EXPECT_EQ(commandsOn(SystemKind::macOS).runAdmin("printf '<%s>' \"a  b\" \"\" c"), "<a  b><><c>");
}

TEST_F(PrivilegedLines, backslashBeforeAQuoteDoesNotSurviveOnMacOS) {
    processes.standIn = [](const auto& arguments) {
        return StandIns::Program{"/bin/sh", {"-c", lineInScript(arguments.back())}};
    };
    EXPECT_EQ(commandsOn(SystemKind::macOS).runAdmin("printf \\\""), "cancelled or failed: syntax error\n");
}

TEST_F(PrivilegedLines, everyByteReachesTheShellOnLinux) {
    processes.standIn = [](const auto& arguments) {
        return StandIns::Program{arguments.at(1), {arguments.begin() + 2, arguments.end()}};
    };
    EXPECT_EQ(commandsOn(SystemKind::desktopLinux).run("printf '<%s>' \"a  b\" \\\" '\\' \"\\\"\""),
              "<a  b><\"><\\><\">");
}

TEST_F(PrivilegedLines, inputIsEmptyOnLinux) {
    EXPECT_TRUE(fakes::inChild([this] {
        int ends[2];
        if (::pipe(ends) != 0 || ::dup2(ends[0], STDIN_FILENO) < 0 || ::write(ends[1], "in", 2) != 2) return false;
        ::close(ends[1]);
        processes.standInIsShell("cat");
        return commandsOn(SystemKind::desktopLinux).run("true") == "done";
    }));
}

TEST_F(PrivilegedLines, longOutputDoesNotHangOnLinux) {
    processes.standInIsShell("head -c 1000000 /dev/zero | tr '\\0' x");
    EXPECT_EQ(commandsOn(SystemKind::desktopLinux).runAdmin("true"), std::string(1'000'000, 'x'));
}

#ifdef __linux__
// pkexec itself, where it is installed, for a process that can become nobody else: it then refuses before it would ask.
TEST_F(PrivilegedLines, realPkexecRefusesAtOnce) {
    machine.system = SystemKind::desktopLinux;
    const bool installed = std::filesystem::exists("/usr/bin/pkexec");
    EXPECT_TRUE(fakes::asOrdinaryUser([&] {
        if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0) return false;
        PosixChildProcess real;
        PrivilegedCommands commands(withProcesses(machine.platform(), real));
        const std::string text = commands.runAdmin("/bin/true");
        if (!installed) return text == std::string("failed: ") + std::strerror(ENOENT);
        const std::string refused = "cancelled or failed: ";
        return text.starts_with(refused) && text.size() > refused.size() && commands.run("/bin/true") == "cancelled";
    }));
}

TEST_F(PrivilegedLines, missingOsascriptIsAFailedLaunch) {
    machine.system = SystemKind::macOS;
    PosixChildProcess real;
    PrivilegedCommands commands(withProcesses(machine.platform(), real));
    const std::string text = std::string("failed: ") + std::strerror(ENOENT);
    EXPECT_EQ(commands.run(freeMemoryLine(SystemKind::macOS)), text);
    EXPECT_EQ(commands.runAdmin(freeMemoryLine(SystemKind::macOS)), text);
}
#endif

}  // namespace
}  // namespace zelk
