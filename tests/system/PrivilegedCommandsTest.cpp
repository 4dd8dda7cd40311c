// SPDX-License-Identifier: MIT
// What is started for each line on each system, with a child that only records.
#include "system/PrivilegedCommands.h"

#include <gmock/gmock.h>

#include "fakes/FakePlatform.h"
#include "system/MaintenanceLines.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PrivilegedCommandsTest : public testing::Test {
protected:
    using Call = fakes::FakeProcesses::Call;

    PrivilegedCommands commandsOn(SystemKind system) {
        machine.system = system;
        return PrivilegedCommands(machine.platform());
    }
    PrivilegedCommands onMac() { return commandsOn(SystemKind::macOS); }
    PrivilegedCommands onLinux() { return commandsOn(SystemKind::desktopLinux); }

    void installHelper() { machine.files.addFile("/usr/libexec/zelk-admin"); }
    /// Every program that is started ends like this.
    void answer(ChildOutcome outcome) {
        machine.processes.outcome = [=](const Call&) { return outcome; };
    }
    /// `program` ends like this, and every other one without a word.
    void answer(const std::string& program, ChildOutcome outcome) {
        machine.processes.outcome = [=](const Call& call) {
            return call.executable == program ? outcome : ChildOutcome{};
        };
    }

    static Call osascript(const std::string& script) { return {"/usr/bin/osascript", {"-e", script}, {}}; }
    static Call pkexec(std::vector<std::string> command) {
        command.insert(command.begin(), "--disable-internal-agent");
        return {"/usr/bin/pkexec", command, quietInput};
    }

    static constexpr ChildStreams quietInput{false, true, true};
    const Call resolvectl{"/usr/bin/resolvectl", {"flush-caches"}, quietInput};
    /// What comes of it where its service is not installed, or does not run.
    const std::vector<ChildOutcome> withoutResolver{
        {"No such file or directory", 0, ""},
        {std::nullopt, 1, "Failed to flush caches: Unit dbus-org.freedesktop.resolve1.service not found.\n"},
        {std::nullopt, 1, "Failed to flush caches: Unit systemd-resolved.service is masked.\n"},
        {std::nullopt, 1,
         "Failed to flush caches: The name org.freedesktop.resolve1 was not provided by any .service files\n"},
        {std::nullopt, 1, "Failed to flush caches: Could not activate remote peer.\n"},
    };
    fakes::FakePlatform machine;
};

TEST_F(PrivilegedCommandsTest, macHandsEveryLineToOsascript) {
    for (const std::string& line :
         {freeMemoryLine(SystemKind::macOS), flushDNSLine(SystemKind::macOS),
          std::string("/usr/bin/tmutil thinlocalsnapshots / 5000000000 4"),
          std::string("/usr/bin/tmutil deletelocalsnapshots 2021-04-05-162416"), std::string()}) {
        const std::size_t before = machine.processes.calls().size();
        onMac().run(line);
        onMac().runAdmin(line);
        const Call expected = osascript("do shell script \"" + line + "\" with administrator privileges");
        const auto calls = machine.processes.calls();
        EXPECT_THAT(std::vector<Call>(calls.begin() + static_cast<std::ptrdiff_t>(before), calls.end()),
                    ElementsAre(expected, expected));
    }
}

TEST_F(PrivilegedCommandsTest, macUsesTheStreamsOfThisProcessAndReadsAfterTheEnd) {
    onMac().run("true");
    EXPECT_EQ(machine.processes.calls().front().streams, (ChildStreams{true, true, false}));
}

TEST_F(PrivilegedCommandsTest, macEscapesQuotesAndNothingElse) {
    onMac().run("echo \"a b\" 'c' $d `e` \n%s");
    onMac().runAdmin("\"");
    EXPECT_THAT(
        machine.processes.calls(),
        ElementsAre(osascript("do shell script \"echo \\\"a b\\\" 'c' $d `e` \n%s\" with administrator privileges"),
                    osascript("do shell script \"\\\"\" with administrator privileges")));
}

TEST_F(PrivilegedCommandsTest, macLeavesBackslashesEvenBeforeQuotes) {
    onMac().run("printf a\\b");
    onMac().run("printf \\\"");
    EXPECT_THAT(machine.processes.calls(),
                ElementsAre(osascript("do shell script \"printf a\\b\" with administrator privileges"),
                            osascript("do shell script \"printf \\\\\"\" with administrator privileges")));
}

TEST_F(PrivilegedCommandsTest, macHasNoHelperAndNoLinuxTools) {
    installHelper();
    onMac().run(freeMemoryLine(SystemKind::desktopLinux));
    onMac().run(flushDNSLine(SystemKind::desktopLinux));
    for (const Call& call : machine.processes.calls()) EXPECT_EQ(call.executable, "/usr/bin/osascript");
}

TEST_F(PrivilegedCommandsTest, linuxHandsLinesToAShellWithoutTheHelper) {
    const std::vector<std::string> lines{freeMemoryLine(SystemKind::desktopLinux),
                                         "/usr/bin/snapper -c root delete --sync 12", "echo \"a b\" \\\" $x", ""};
    std::vector<Call> expected;
    for (const std::string& line : lines) {
        onLinux().run(line);
        onLinux().runAdmin(line);
        expected.insert(expected.end(), 2, pkexec({"/bin/sh", "-c", line}));
    }
    EXPECT_EQ(machine.processes.calls(), expected);
}

TEST_F(PrivilegedCommandsTest, linuxHandsKnownLinesToTheHelper) {
    installHelper();
    onLinux().run("sync; echo 3 > /proc/sys/vm/drop_caches");
    onLinux().runAdmin("/usr/bin/snapper -c root delete --sync 12");
    onLinux().runAdmin(
        "/usr/bin/snapper -c root cleanup --free-space 5000000000 number; "
        "/usr/bin/snapper -c root cleanup --free-space 5000000000 timeline");
    onLinux().runAdmin("DEBIAN_FRONTEND=noninteractive /usr/bin/dpkg --remove falkon");
    const std::string helper = "/usr/libexec/zelk-admin";
    EXPECT_THAT(machine.processes.calls(),
                ElementsAre(pkexec({helper, "free-memory"}), pkexec({helper, "delete-snapshot", "root", "12"}),
                            pkexec({helper, "thin-snapshots", "root"}), pkexec({helper, "remove-package", "falkon"})));
}

TEST_F(PrivilegedCommandsTest, linuxHandsOtherLinesToAShellDespiteTheHelper) {
    installHelper();
    onLinux().run("/usr/bin/true");
    onLinux().runAdmin("/usr/bin/snapper -c $(x) delete --sync 12");
    EXPECT_THAT(machine.processes.calls(),
                ElementsAre(pkexec({"/bin/sh", "-c", "/usr/bin/true"}),
                            pkexec({"/bin/sh", "-c", "/usr/bin/snapper -c $(x) delete --sync 12"})));
}

TEST_F(PrivilegedCommandsTest, linuxFlushesDNSWithoutAQuestion) {
    installHelper();
    EXPECT_EQ(onLinux().run(flushDNSLine(SystemKind::desktopLinux)), "done");
    EXPECT_EQ(onLinux().runAdmin(flushDNSLine(SystemKind::desktopLinux)), "");
    EXPECT_THAT(machine.processes.calls(), ElementsAre(resolvectl, resolvectl));
}

TEST_F(PrivilegedCommandsTest, linuxShowsWhatTheFlushSays) {
    answer({std::nullopt, 0, "flushed\n"});
    EXPECT_EQ(onLinux().run(flushDNSLine(SystemKind::desktopLinux)), "flushed\n");
}

TEST_F(PrivilegedCommandsTest, linuxSaysThatNoDNSCacheRuns) {
    for (const ChildOutcome& none : withoutResolver) {
        answer(none);
        EXPECT_EQ(onLinux().run(flushDNSLine(SystemKind::desktopLinux)), "No DNS cache runs here.") << none.output;
        EXPECT_EQ(onLinux().runAdmin(flushDNSLine(SystemKind::desktopLinux)), "No DNS cache runs here.") << none.output;
    }
    EXPECT_EQ(machine.processes.calls(), std::vector<Call>(2 * withoutResolver.size(), resolvectl));
}

// It may run outside.
TEST_F(PrivilegedCommandsTest, sandboxDoesNotSayThatNoDNSCacheRuns) {
    machine.locations.sandboxed = true;
    machine.files.addFile("/usr/sbin/nscd");
    machine.files.addFile("/run/nscd/socket");
    answer({"Flatpak’s sandbox has no resolvectl.", 0, ""});
    EXPECT_EQ(onLinux().run(flushDNSLine(SystemKind::desktopLinux)), "failed: Flatpak’s sandbox has no resolvectl.");
    EXPECT_THAT(machine.processes.calls(), ElementsAre(resolvectl)) << "nor is that of the runtime flushed";
}

TEST_F(PrivilegedCommandsTest, sandboxSaysThatNobodyAsksForAnAdministrator) {
    machine.locations.sandboxed = true;
    answer({"Flatpak’s sandbox has no pkexec.", 0, ""});
    EXPECT_EQ(onLinux().run(freeMemoryLine(SystemKind::desktopLinux)), "failed: Flatpak’s sandbox has no pkexec.");
    EXPECT_EQ(onLinux().runAdmin("line"), "failed: Flatpak’s sandbox has no pkexec.");
}

TEST_F(PrivilegedCommandsTest, linuxTellsAFlushThatFailed) {
    // Not even with the other cache here: this one runs, and has kept what it knows.
    machine.files.addFile("/usr/sbin/nscd");
    machine.files.addFile("/run/nscd/socket");
    for (const ChildOutcome& failed :
         {ChildOutcome{std::nullopt, 1, "Failed to flush caches: Access denied\n"},
          ChildOutcome{std::nullopt, 1, "Failed to flush caches: Connection timed out\n"},
          ChildOutcome{std::nullopt, 1, ""}, ChildOutcome{std::nullopt, 9, ""}, ChildOutcome{std::nullopt, -1, ""}}) {
        answer(failed);
        EXPECT_EQ(onLinux().run(flushDNSLine(SystemKind::desktopLinux)), "cancelled");
        EXPECT_EQ(onLinux().runAdmin(flushDNSLine(SystemKind::desktopLinux)), "cancelled or failed: " + failed.output);
    }
    EXPECT_EQ(machine.processes.calls(), std::vector<Call>(10, resolvectl));
}

TEST_F(PrivilegedCommandsTest, linuxBelievesAFlushThatSucceeded) {
    answer({std::nullopt, 0, "Unit a.service not found\n"});
    EXPECT_EQ(onLinux().run(flushDNSLine(SystemKind::desktopLinux)), "Unit a.service not found\n");
}

TEST_F(PrivilegedCommandsTest, linuxFlushesTheNameServiceCacheInstead) {
    machine.files.addFile("/usr/sbin/nscd");
    machine.files.addFile("/run/nscd/socket");
    const Call nscd = pkexec({"/usr/sbin/nscd", "-i", "hosts"});
    std::vector<Call> expected;
    for (const ChildOutcome& none : withoutResolver) {
        answer("/usr/bin/resolvectl", none);
        EXPECT_EQ(onLinux().run(flushDNSLine(SystemKind::desktopLinux)), "done");
        expected.insert(expected.end(), {resolvectl, nscd});
    }
    EXPECT_EQ(machine.processes.calls(), expected);
    machine.processes.outcome = [](const Call& call) {
        return call.executable == "/usr/bin/pkexec" ? ChildOutcome{std::nullopt, 126, "dismissed\n"}
                                                    : ChildOutcome{"No such file or directory", 0, ""};
    };
    EXPECT_EQ(onLinux().run(flushDNSLine(SystemKind::desktopLinux)), "cancelled");
    EXPECT_EQ(onLinux().runAdmin(flushDNSLine(SystemKind::desktopLinux)), "cancelled or failed: dismissed\n");
}

TEST_F(PrivilegedCommandsTest, linuxAsksForNoCacheThatDoesNotRun) {
    answer(withoutResolver.back());
    machine.files.addFile("/usr/sbin/nscd");
    EXPECT_EQ(onLinux().run(flushDNSLine(SystemKind::desktopLinux)), "No DNS cache runs here.");
    ASSERT_TRUE(machine.files.remove(ItemPath::from("/usr/sbin/nscd").value()) == std::nullopt);
    machine.files.addFile("/run/nscd/socket");
    EXPECT_EQ(onLinux().run(flushDNSLine(SystemKind::desktopLinux)), "No DNS cache runs here.");
    EXPECT_THAT(machine.processes.calls(), ElementsAre(resolvectl, resolvectl));
}

TEST_F(PrivilegedCommandsTest, bothSystemsTellEveryEndAlike) {
    struct End {
        ChildOutcome outcome;
        std::string run;
        std::string runAdmin;
    };
    const std::vector<End> ends{
        {{std::nullopt, 0, "out\n"}, "out\n", "out\n"},
        {{std::nullopt, 0, ""}, "done", ""},
        {{std::nullopt, 0, "\xff"}, "done", ""},
        {{std::nullopt, 1, "why\n"}, "cancelled", "cancelled or failed: why\n"},
        {{std::nullopt, 126, "Request dismissed\n"}, "cancelled", "cancelled or failed: Request dismissed\n"},
        {{std::nullopt, 127, "Not authorized\n"}, "cancelled", "cancelled or failed: Not authorized\n"},
        {{std::nullopt, 64, ""}, "cancelled", "cancelled or failed: "},
        {{"No such file or directory", 0, ""},
         "failed: No such file or directory",
         "failed: No such file or directory"},
    };
    for (const SystemKind system : {SystemKind::macOS, SystemKind::desktopLinux}) {
        for (const End& end : ends) {
            answer(end.outcome);
            EXPECT_EQ(commandsOn(system).run(freeMemoryLine(system)), end.run);
            EXPECT_EQ(commandsOn(system).runAdmin(freeMemoryLine(system)), end.runAdmin);
        }
    }
}

TEST_F(PrivilegedCommandsTest, knowsTheRefusalsOfPkexec) {
    const std::string refusal = "Error executing command as another user: ";
    for (const char* reason : {"Request dismissed\n", "Not authorized\n\nThis incident has been reported.\n",
                               "No authentication agent found.\n"}) {
        answer({std::nullopt, 126, refusal + reason});
        EXPECT_TRUE(wasNotAllowed(onLinux().runAdmin("/usr/bin/true"))) << reason;
        EXPECT_TRUE(wasNotAllowed(onLinux().outcomeOf("/usr/bin/true"))) << reason;
    }
    answer({std::nullopt, 126, "Deleting.\n" + refusal});
    EXPECT_FALSE(wasNotAllowed(onLinux().runAdmin("/usr/bin/true"))) << "of the program that was run";
    EXPECT_FALSE(wasNotAllowed(onLinux().outcomeOf("/usr/bin/true")));
    answer({std::nullopt, 0, refusal});
    EXPECT_FALSE(wasNotAllowed(onLinux().runAdmin("/usr/bin/true")));
    EXPECT_FALSE(wasNotAllowed(onLinux().outcomeOf("/usr/bin/true")));
    for (const char* other : {"", "cancelled or failed: ", "cancelled or failed: No permissions.\n", "failed: why"})
        EXPECT_FALSE(wasNotAllowed(other)) << other;
}

TEST_F(PrivilegedCommandsTest, startsNothingBeforeItIsCalled) {
    onLinux();
    onMac();
    EXPECT_THAT(machine.processes.calls(), IsEmpty());
}

}  // namespace
}  // namespace zelk
