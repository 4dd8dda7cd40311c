// SPDX-License-Identifier: MIT
#include "system/SnapshotSource.h"

#include <gmock/gmock.h>

#include <utility>
#include <vector>

#include "fakes/FakePlatform.h"
#include "system/SnapshotCommands.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using SnapshotCall = fakes::FakeProcesses::Call;

const ChildOutcome missingTool{"No such file or directory", 0, {}};
const ChildStreams listingOutput{.inheritsInput = false, .errorsWithOutput = false, .readsWhileRunning = true};

const SnapshotCall diskutilCall{"/usr/sbin/diskutil", {"apfs", "listSnapshots", "/"}, listingOutput};
const SnapshotCall configsCall{"/usr/bin/snapper", {"--utc", "--jsonout", "list-configs"}, listingOutput};
const SnapshotCall snapperListCall{"/usr/bin/snapper", {"--utc", "--jsonout", "-c", "root", "list"}, listingOutput};
const SnapshotCall zfsListCall{
    "/usr/sbin/zfs", {"list", "-Hp", "-t", "snapshot", "-o", "name,creation,used,guid"}, listingOutput};
const SnapshotCall zfsRootCall{"/usr/sbin/zfs", {"list", "-H", "-o", "name", "/"}, listingOutput};

const char* const rootConfig = R"({"configs":[{"config":"root","subvolume":"/"}]})";
const char* const oneSnapshot =
    R"({"root":[{"number":5,"default":false,"active":false,"type":"single","date":"1970-01-01 00:01:40",)"
    R"("cleanup":"number","description":"one","userdata":null}]})";
const LocalSnapshot snapshotOfSnapper{"one", 100.0, false, true, "root/5"};

class SnapshotSources : public testing::Test {
protected:
    /// What each call answers; the others are of tools that are not installed.
    void answer(const SnapshotCall& call, ChildOutcome outcome) { answers_.emplace_back(call, std::move(outcome)); }
    void answer(const SnapshotCall& call, const std::string& output, int status = 0) {
        answer(call, ChildOutcome{std::nullopt, status, output});
    }
    SnapshotListing list(SystemKind system) {
        machine.system = system;
        machine.processes.outcome = [this](const SnapshotCall& call) {
            for (const auto& [known, outcome] : answers_)
                if (known == call) return outcome;
            return missingTool;
        };
        return listSnapshots(machine.platform());
    }

    fakes::FakePlatform machine;

private:
    std::vector<std::pair<SnapshotCall, ChildOutcome>> answers_;
};

constexpr SystemKind snapshotsOnMac = SystemKind::macOS;
constexpr SystemKind snapshotsOnLinux = SystemKind::desktopLinux;

TEST_F(SnapshotSources, macOSAsksDiskutilAlone) {
    answer(diskutilCall, "+-- AFD82B0C-23D3-481B-9401-0A17DC46C1EC\n| Name: NewRoot\n| Purgeable: Yes\n");
    const SnapshotListing listing = list(snapshotsOnMac);
    EXPECT_EQ(listing.keeper, SnapshotKeeper::diskutil);
    EXPECT_FALSE(listing.refused);
    EXPECT_THAT(listing.snapshots, ElementsAre(LocalSnapshot{"NewRoot", std::nullopt, false, true,
                                                             "AFD82B0C-23D3-481B-9401-0A17DC46C1EC"}));
    EXPECT_THAT(machine.processes.calls(), ElementsAre(diskutilCall));
}

TEST_F(SnapshotSources, exitStatusOfDiskutilIsNotLookedAt) {
    answer(diskutilCall, "Name: NewRoot\n", 1);
    EXPECT_EQ(list(snapshotsOnMac).snapshots.size(), 1U);
}

TEST_F(SnapshotSources, missingDiskutilListsNothing) {
    const SnapshotListing listing = list(snapshotsOnMac);
    EXPECT_EQ(listing, (SnapshotListing{SnapshotKeeper::diskutil, {}, {}, false}));
    EXPECT_EQ(machine.processes.calls().size(), 1U);
}

TEST_F(SnapshotSources, undecodableOutputOfDiskutilListsNothing) {
    answer(diskutilCall, "Name: NewRoot\nName: \xFF\n");
    EXPECT_THAT(list(snapshotsOnMac).snapshots, IsEmpty());
}

TEST_F(SnapshotSources, snapperGoesFirstOnLinux) {
    answer(configsCall, rootConfig);
    answer(snapperListCall, oneSnapshot);
    EXPECT_EQ(list(snapshotsOnLinux), (SnapshotListing{SnapshotKeeper::snapper, {snapshotOfSnapper}, "root", false}));
    EXPECT_THAT(machine.processes.calls(), ElementsAre(configsCall, snapperListCall));
}

TEST_F(SnapshotSources, snapperThatDoesNotAnswerThisUserRefuses) {
    for (const ChildOutcome& outcome : {ChildOutcome{std::nullopt, 1, ""}, ChildOutcome{std::nullopt, 1, oneSnapshot},
                                        ChildOutcome{std::nullopt, 0, "No permissions."}, missingTool}) {
        machine.processes.outcome = [&](const SnapshotCall& call) {
            return call == configsCall ? ChildOutcome{std::nullopt, 0, rootConfig} : outcome;
        };
        machine.system = snapshotsOnLinux;
        EXPECT_EQ(listSnapshots(machine.platform()), (SnapshotListing{SnapshotKeeper::snapper, {}, "root", true}));
    }
}

TEST_F(SnapshotSources, emptyListOfSnapperIsNoRefusal) {
    answer(configsCall, rootConfig);
    answer(snapperListCall, R"({"root":[]})");
    EXPECT_EQ(list(snapshotsOnLinux), (SnapshotListing{SnapshotKeeper::snapper, {}, "root", false}));
}

TEST_F(SnapshotSources, zfsFollowsWithoutConfigurationForTheVolume) {
    answer(configsCall, R"({"configs":[{"config":"home","subvolume":"/home"}]})");
    answer(zfsListCall, "rpool/root@a\t100\t5\t77\nrpool/home@b\t200\t5\t78\n");
    answer(zfsRootCall, "rpool/root\n");
    EXPECT_EQ(
        list(snapshotsOnLinux),
        (SnapshotListing{SnapshotKeeper::zfs, {LocalSnapshot{"rpool/root@a", 100.0, false, false, "77"}}, {}, false}));
    EXPECT_THAT(machine.processes.calls(), ElementsAre(configsCall, zfsRootCall, zfsListCall));
}

TEST_F(SnapshotSources, zfsListsNothingIfItIsNotAtTheRoot) {
    for (const ChildOutcome& mounted : {ChildOutcome{std::nullopt, 1, ""}, ChildOutcome{std::nullopt, 1, "tank/data\n"},
                                        ChildOutcome{std::nullopt, 0, ""}, ChildOutcome{std::nullopt, 0, "\n"}}) {
        machine.processes.outcome = [&](const SnapshotCall& call) {
            if (call == zfsListCall) return ChildOutcome{std::nullopt, 0, "tank/data@a\t100\t5\t77\n"};
            return call == zfsRootCall ? mounted : missingTool;
        };
        machine.system = snapshotsOnLinux;
        EXPECT_EQ(listSnapshots(machine.platform()), SnapshotListing()) << mounted.output;
    }
}

TEST_F(SnapshotSources, failingSnapperLeavesItToZfs) {
    answer(configsCall, rootConfig, 1);
    answer(zfsRootCall, "rpool/root\n");
    answer(zfsListCall, "rpool/root@a\t100\t5\t77\n");
    EXPECT_EQ(list(snapshotsOnLinux).keeper, SnapshotKeeper::zfs);
}

TEST_F(SnapshotSources, nothingKeepsSnapshotsWithoutBoth) {
    EXPECT_EQ(list(snapshotsOnLinux), SnapshotListing());
    EXPECT_THAT(machine.processes.calls(), ElementsAre(configsCall, zfsRootCall));
    answer(zfsRootCall, "rpool/root\n");
    answer(zfsListCall, "");
    EXPECT_EQ(list(snapshotsOnLinux), SnapshotListing()) << "no snapshots";
}

TEST_F(SnapshotSources, sandboxCannotKnowWhetherThereAreAny) {
    machine.locations.sandboxed = true;
    answer(configsCall, rootConfig);
    answer(snapperListCall, oneSnapshot);
    EXPECT_EQ(list(snapshotsOnLinux),
              (SnapshotListing{.keeper = SnapshotKeeper::none, .snapshots = {}, .config = {}, .refused = true}));
    EXPECT_THAT(machine.processes.calls(), IsEmpty()) << "a tool of the runtime knows nothing of the host";
}

TEST_F(SnapshotSources, failingZfsListsNothing) {
    answer(zfsRootCall, "rpool/root\n");
    answer(zfsListCall, "rpool/root@a\t100\t5\t77\n", 1);
    EXPECT_EQ(list(snapshotsOnLinux), SnapshotListing());
}

TEST(ZfsLists, readNamesWithBlanks) {
    EXPECT_THAT(parseZfsList("tank/my data@before the trip\t1700000000\t123456789012\t18446744073709551615\n", ""),
                ElementsAre(LocalSnapshot{"tank/my data@before the trip", 1'700'000'000.0, false, false,
                                          "18446744073709551615"}));
}

TEST(ZfsLists, knowNoTimeBeyondTheYear9999) {
    const auto date = [](const std::string& creation) {
        return parseZfsList("a@1\t" + creation + "\t1\t1\n", "a").at(0).date;
    };
    EXPECT_EQ(date("0"), 0.0);
    EXPECT_EQ(date("253402300799"), 253'402'300'799.0);
    for (const char* creation : {"-1", "253402300800", "9223372036854775807", "-9223372036854775808"})
        EXPECT_EQ(date(creation), std::nullopt) << creation;
}

TEST(ZfsLists, filterByWholeDataset) {
    const char* const text = "a@1\t1\t1\t1\na/b@2\t1\t1\t2\nab@3\t1\t1\t3\na@4\t1\t1\t4\n";
    const auto names = [&](const char* dataset) {
        std::vector<std::string> found;
        for (const LocalSnapshot& snapshot : parseZfsList(text, dataset)) found.push_back(snapshot.name);
        return found;
    };
    EXPECT_THAT(names("a"), ElementsAre("a@1", "a@4"));
    EXPECT_THAT(names("a/b"), ElementsAre("a/b@2"));
    EXPECT_THAT(names("b"), IsEmpty());
    EXPECT_EQ(names("").size(), 4U);
}

TEST(ZfsLists, skipUnexpectedLines) {
    for (const char* line :
         {"", "a@1", "a@1\t1\t1", "a@1\t1\t1\tx", "a@1\t1\t1\t1\t1", "a@1\tx\t1\t1", "a@1\t1\t-\t1", "a\t1\t1\t1",
          "@1\t1\t1\t1", "a@\t1\t1\t1", "a@1 1 1 1", "a@1\t1\t1\t-1", "a@1\t1\t1\t18446744073709551616"})
        EXPECT_THAT(parseZfsList(line, ""), IsEmpty()) << line;
    EXPECT_EQ(parseZfsList("x\na@1\t1\t1\t1\n\n", "").size(), 1U);
}

LocalSnapshot snapshotNamed(const std::string& name) {
    return {name, std::nullopt, false, true, "AFD82B0C-23D3-481B-9401-0A17DC46C1EC"};
}

TEST(DeleteLines, endInTheStampAloneOnMacOS) {
    EXPECT_EQ(deleteLine(SnapshotKeeper::diskutil, snapshotNamed("com.apple.TimeMachine.2024-03-07-101502.local")),
              "/usr/bin/tmutil deletelocalsnapshots 2024-03-07-101502");
}

TEST(DeleteLines, carryTheWholeNameWithoutStamp) {
    EXPECT_EQ(deleteLine(SnapshotKeeper::diskutil, snapshotNamed("NewRoot")),
              "/usr/bin/tmutil deletelocalsnapshots NewRoot");
    EXPECT_EQ(
        deleteLine(SnapshotKeeper::diskutil, snapshotNamed("com.apple.os.update-779BDF1556C6F688504E24FB29C75AFF")),
        "/usr/bin/tmutil deletelocalsnapshots com.apple.os.update-779BDF1556C6F688504E24FB29C75AFF");
    EXPECT_EQ(deleteLine(SnapshotKeeper::diskutil, snapshotNamed("a_B.9")),
              "/usr/bin/tmutil deletelocalsnapshots a_B.9");
}

TEST(DeleteLines, carryAnImpossibleStamp) {
    EXPECT_EQ(deleteLine(SnapshotKeeper::diskutil, snapshotNamed("x.2024-13-07-101502")),
              "/usr/bin/tmutil deletelocalsnapshots 2024-13-07-101502");
}

TEST(DeleteLines, areRefusedForNamesThatCouldBeAnythingElse) {
    for (const std::string& name : {std::string(),
                                    std::string("/"),
                                    std::string("."),
                                    std::string(".."),
                                    std::string("..."),
                                    std::string("-a"),
                                    std::string("a b"),
                                    std::string("a;b"),
                                    std::string("$(reboot)"),
                                    std::string("`reboot`"),
                                    std::string("a&b"),
                                    std::string("a|b"),
                                    std::string("a\nb"),
                                    std::string("a\rb"),
                                    std::string("a\tb"),
                                    std::string("a'b"),
                                    std::string("a\"b"),
                                    std::string("a\\b"),
                                    std::string("a/b"),
                                    std::string("~"),
                                    std::string("*"),
                                    std::string("a>b"),
                                    std::string("ä"),
                                    std::string("a\0b", 3),
                                    std::string("/System/Volumes/Data")})
        EXPECT_EQ(deleteLine(SnapshotKeeper::diskutil, snapshotNamed(name)), std::nullopt) << name;
}

TEST(DeleteLines, nameConfigurationAndNumberOfSnapper) {
    const auto line = [](const std::string& uuid) {
        return deleteLine(SnapshotKeeper::snapper, {"; reboot", std::nullopt, false, true, uuid});
    };
    EXPECT_EQ(line("root/5"), "/usr/bin/snapper -c root delete --sync 5");
    EXPECT_EQ(line("my_root-2/120"), "/usr/bin/snapper -c my_root-2 delete --sync 120");
    for (const char* uuid :
         {"", "root", "root/", "/5", "root/0", "root/05", "root/-5", "root/5x", "root/5 6", "root/5-7", "root/root/5",
          "-root/5", "ro ot/5", "ro;ot/5", "$(reboot)/5", "root\n/5", "root/5\n", "rööt/5", "root.2/5"})
        EXPECT_EQ(line(uuid), std::nullopt) << uuid;
}

TEST(DeleteLines, thereAreNoneForOtherKeepers) {
    for (const SnapshotKeeper keeper : {SnapshotKeeper::zfs, SnapshotKeeper::none})
        EXPECT_EQ(deleteLine(keeper, {"NewRoot", std::nullopt, false, true, "root/5"}), std::nullopt);
}

TEST(ThinLines, askForFiveGigabytes) {
    EXPECT_EQ(thinLine({SnapshotKeeper::diskutil, {}, {}, false}), "/usr/bin/tmutil thinlocalsnapshots / 5000000000 4");
    EXPECT_EQ(thinLine({SnapshotKeeper::snapper, {}, "root", false}),
              "/usr/bin/snapper -c root cleanup --free-space 5000000000 number; "
              "/usr/bin/snapper -c root cleanup --free-space 5000000000 timeline");
    for (const SnapshotKeeper keeper : {SnapshotKeeper::zfs, SnapshotKeeper::none})
        EXPECT_EQ(thinLine({keeper, {}, "root", false}), std::nullopt);
    for (const char* config : {"", "ro ot", "-c", "root;reboot", "root\n", "ro/ot"})
        EXPECT_EQ(thinLine({SnapshotKeeper::snapper, {}, config, false}), std::nullopt) << config;
}

class RunsAsUser : public testing::Test {
protected:
    std::optional<std::string> run(ChildOutcome outcome) {
        processes.outcome = [outcome = std::move(outcome)](const SnapshotCall&) { return outcome; };
        return runAsUser(processes, "/usr/bin/snapper -c root delete --sync 5");
    }

    fakes::FakeProcesses processes;
};

TEST_F(RunsAsUser, inEnglishWithBothOutputsAndNoInput) {
    run({});
    EXPECT_THAT(processes.calls(), ElementsAre(SnapshotCall{
                                       "/usr/bin/env",
                                       {"LC_ALL=C", "/bin/sh", "-c", "/usr/bin/snapper -c root delete --sync 5"},
                                       {.inheritsInput = false, .errorsWithOutput = true, .readsWhileRunning = true}}));
}

TEST_F(RunsAsUser, answersAsTheAdministratorsRunnerDoes) {
    EXPECT_EQ(run({std::nullopt, 0, ""}), "");
    EXPECT_EQ(run({std::nullopt, 0, "Deleting\n"}), "Deleting\n");
    EXPECT_EQ(run({std::nullopt, 0, "\xFF"}), "");
    EXPECT_EQ(run({std::nullopt, 1, "Snapshot '5' not found.\n"}), "cancelled or failed: Snapshot '5' not found.\n");
    EXPECT_EQ(run({std::nullopt, 9, ""}), "cancelled or failed: ");
    EXPECT_EQ(run(missingTool), "failed: No such file or directory");
}

TEST_F(RunsAsUser, givesWayOnlyIfItHadNoPermission) {
    EXPECT_EQ(run({std::nullopt, 1, "No permissions.\n"}), std::nullopt);
    EXPECT_EQ(run({std::nullopt, 1, "Deleting \xFF\nNo permissions.\n"}), std::nullopt);
    EXPECT_EQ(run({std::nullopt, 0, "No permissions.\n"}), "No permissions.\n");
}

}  // namespace
}  // namespace zelk
