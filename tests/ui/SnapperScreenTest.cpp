// SPDX-License-Identifier: MIT
#include <QSignalSpy>
#include <functional>

#include "SystemFixture.h"

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The same on Linux, for a user whom snapper permits.
class SnapperScreenTest : public SystemModelTest {
protected:
    SnapperScreenTest() {
        machine.system = SystemKind::desktopLinux;
        tools.kept = {{"apt", true, 4, "pre"}, {"daily", true, 5}, {"mine", false, 6}};
        tools.removing = [this] { tools.kept.erase(tools.kept.begin() + 1); };
    }

    TextsOf linuxTexts{desktopLinux};
};

constexpr const char* userTool = "/usr/bin/env: ";

}  // namespace

TEST_F(SnapperScreenTest, showsDescriptions) {
    list();
    EXPECT_EQ(cell(0, SnapshotRows::kindRole), "OS update");
    EXPECT_EQ(cell(1, SnapshotRows::kindRole), "Snapshot");
    EXPECT_EQ(cell(1, SnapshotRows::noteRole), "daily");
    EXPECT_EQ(cell(1, SnapshotRows::deleteNameRole), "Delete snapshot daily, " + cell(1, SnapshotRows::dateRole));
    EXPECT_EQ(cell(2, SnapshotRows::tagRole), "pinned");
    EXPECT_EQ(snapshots().note().toStdString(), SystemTexts::wording(SystemTexts::SnapshotSizes, desktopLinux));
}

TEST_F(SnapperScreenTest, buttonsOfSnapshotsOfOneNameDiffer) {
    tools.kept = {{"timeline", true, 4, "single", "2024-03-07 10:15:02"},
                  {"timeline", true, 5, "single", "2024-03-07 11:15:02"},
                  {"timeline", true, 6, "single", ""}};
    list();
    const std::string name = "Delete snapshot timeline";
    EXPECT_EQ(cell(0, SnapshotRows::deleteNameRole), name + ", " + cell(0, SnapshotRows::dateRole));
    EXPECT_EQ(cell(1, SnapshotRows::deleteNameRole), name + ", " + cell(1, SnapshotRows::dateRole));
    EXPECT_NE(cell(0, SnapshotRows::dateRole), cell(1, SnapshotRows::dateRole));
    EXPECT_EQ(cell(2, SnapshotRows::deleteNameRole), name);
}

TEST_F(SnapperScreenTest, adviceOnDiskImagesNamesToolsOfTheSystem) {
    machine.directories.file(home + "/a.qcow2", 90'000'000, 0);
    machine.directories.file(home + "/b.sparseimage", 80'000'000, 0);
    screen();
    survey();
    const DiskImageRows& images = *screen().diskImages();
    ASSERT_EQ(images.rowCount(), 2);
    const auto text = [&](int row, int role) { return images.index(row).data(role).toString().toStdString(); };
    const std::string machineAdvice =
        "VM disk. Shut the VM down, then copy it without its empty space: qemu-img convert -O qcow2 <path> <copy>";
    const std::string sparseAdvice =
        "Sparse disk image of another system. Compact it there, or delete it if you no longer need its contents.";
    EXPECT_EQ(text(0, DiskImageRows::adviceRole), machineAdvice);
    EXPECT_EQ(text(0, DiskImageRows::spokenRole), "a.qcow2, /home/me, 90 MB, " + machineAdvice);
    EXPECT_EQ(text(1, DiskImageRows::adviceRole), sparseAdvice);
    EXPECT_EQ(text(1, DiskImageRows::spokenRole), "b.sparseimage, /home/me, 80 MB, " + sparseAdvice);
}

TEST_F(SnapperScreenTest, sandboxSaysThatItCannotSeeThem) {
    const TextsOf sandbox(SystemTexts::System::flatpak);
    machine.locations.sandboxed = true;
    list();
    EXPECT_FALSE(snapshots().nothing()) << "nobody knows that";
    EXPECT_FALSE(snapshots().listed());
    EXPECT_FALSE(snapshots().thinnable());
    EXPECT_EQ(snapshots().note().toStdString(),
              "Whether there are snapshots is not known: Flatpak’s sandbox has none of the tools that list them.");
}

TEST_F(SnapperScreenTest, asksBeforeDeleting) {
    remove(1);
    ASSERT_TRUE(snapshots().asking());
    EXPECT_THAT(tools.removals(), IsEmpty());
    EXPECT_EQ(snapshots().question().toStdString(), "Delete this snapshot?");
    EXPECT_THAT(snapshots().consequence().toStdString(), testing::StartsWith("“daily” of Mar 7, 2024, "));
    EXPECT_THAT(snapshots().consequence().toStdString(),
                testing::EndsWith(" is removed for good. It cannot be brought back."));
    EXPECT_EQ(snapshots().agreement().toStdString(), "Delete");
    snapshots().cancel();
    EXPECT_FALSE(snapshots().asking());
    snapshots().confirm();
    runWhatIsThere();
    EXPECT_THAT(tools.removals(), IsEmpty()) << "it was taken back";
}

TEST_F(SnapperScreenTest, questionWithoutDateLeavesItOut) {
    tools.kept[1].date = "";
    remove(1);
    EXPECT_EQ(snapshots().consequence().toStdString(), "“daily” is removed for good. It cannot be brought back.");
}

TEST_F(SnapperScreenTest, yesToWhatHasChangedMeanwhileDoesNothing) {
    const auto expectNothingAfter = [this](const std::function<void()>& change) {
        change();
        list();
        ASSERT_TRUE(snapshots().asking());
        snapshots().confirm();
        runWhatIsThere();
        EXPECT_FALSE(snapshots().asking());
        EXPECT_FALSE(snapshots().acting());
        EXPECT_THAT(tools.removals(), IsEmpty());
    };
    remove(1);
    expectNothingAfter([this] { tools.kept[1].freeable = false; });
    tools.kept[1].freeable = true;
    remove(1);
    expectNothingAfter([this] { tools.kept.erase(tools.kept.begin() + 1); });
    snapshots().thin();
    expectNothingAfter([this] { tools.kept.clear(); });
}

TEST_F(SnapperScreenTest, yesDuringAnotherRemovalDoesNothing) {
    list();
    snapshots().thin();
    ASSERT_TRUE(snapshots().asking());
    tools.lists = false;
    list();
    machine.tasks.hold();
    snapshots().thin();  // of a list that is refused, so that the system asks
    ASSERT_TRUE(snapshots().acting());
    snapshots().confirm();
    EXPECT_FALSE(snapshots().asking());
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_EQ(tools.removals().size(), 1U);
}

TEST_F(SnapperScreenTest, removalThatWasStoppedDoesNotBegin) {
    remove(1);
    EXPECT_FALSE(model().removals().underWay()) << "it is only asked for";
    machine.tasks.hold();
    snapshots().confirm();
    EXPECT_TRUE(model().removals().underWay());
    model().removals().stop();
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_THAT(tools.removals(), IsEmpty());
    EXPECT_EQ(output(), "cancelled or failed: The snapshot is still there.");
    runUntil([&] { return !model().removals().underWay(); });
}

TEST_F(SnapperScreenTest, removalThatWasStoppedAsksNoAdministrator) {
    tools.removes = false;
    remove(1);
    machine.tasks.hold();
    snapshots().confirm();
    machine.tasks.runNext();
    model().removals().stop();
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_THAT(tools.removals(), ElementsAre(testing::StartsWith(userTool)));
    EXPECT_EQ(output(), "cancelled or failed: The snapshot is still there.");
}

TEST_F(SnapperScreenTest, deletesAsTheUserAfterTheQuestion) {
    remove(1);
    QSignalSpy outputs(&snapshots(), &SnapshotsModel::outputChanged);
    snapshots().confirm();
    EXPECT_FALSE(snapshots().asking());
    runWhatIsThere();
    EXPECT_THAT(tools.removals(), ElementsAre(userTool + std::string("/usr/bin/snapper -c root delete --sync 5")));
    EXPECT_THAT(names(), ElementsAre("apt", "mine"));
    EXPECT_EQ(output(), "The snapshot is gone.");
    EXPECT_EQ(outputs.count(), 1) << "it is announced once";
    EXPECT_EQ(tools.listings(), 2);
}

TEST_F(SnapperScreenTest, successIsNotBelieved) {
    tools.removing = [] {};
    remove(1);
    snapshots().confirm();
    runWhatIsThere();
    EXPECT_EQ(output(), "The snapshot is still there.");
    answer("Deleting failed quietly\n");
    remove(1);
    snapshots().confirm();
    runWhatIsThere();
    EXPECT_EQ(output(), "Deleting failed quietly\nThe snapshot is still there.");
}

TEST_F(SnapperScreenTest, successIsNotClaimedWithoutAList) {
    const auto nothingIsKnown = [this] {
        remove(1);
        snapshots().confirm();
        runWhatIsThere();
        EXPECT_EQ(output(), "What was removed is not known: the list could not be read.");
        tools.configured = true;
        tools.lists = true;
        tools.zfs.reset();
    };
    tools.removing = [this] { tools.configured = false; };
    nothingIsKnown();
    tools.removing = [this] { tools.lists = false; };
    nothingIsKnown();
    tools.removing = [this] {
        tools.configured = false;
        tools.zfs = "rpool/root@a\t1700000000\t5\t77\n";
    };
    nothingIsKnown();
}

TEST_F(SnapperScreenTest, listThatCouldNotBeReadBeforeProvesNothing) {
    tools.lists = false;
    tools.removing = [this] { tools.lists = true; };
    list();
    snapshots().thin();
    runWhatIsThere();
    EXPECT_EQ(names().size(), 3U);
    EXPECT_EQ(output(), "What was removed is not known: the list could not be read.");
}

TEST_F(SnapperScreenTest, sentenceFollowsTheAnswerOnALineOfItsOwn) {
    tools.removing = [] {};
    const auto outputFor = [this](const std::string& text, int status) {
        answer(text, status);
        remove(1);
        snapshots().confirm();
        runWhatIsThere();
        return output();
    };
    EXPECT_EQ(outputFor("Deleting", 0), "Deleting\nThe snapshot is still there.");
    EXPECT_EQ(outputFor("In use", 1), "cancelled or failed: In use\nThe snapshot is still there.");
    EXPECT_EQ(outputFor("", 1), "cancelled or failed: The snapshot is still there.");
}

TEST_F(SnapperScreenTest, dismissedQuestionLeavesNothingToSay) {
    tools.removes = false;
    tools.removing = [] {};
    answer("Error executing command as another user: Request dismissed\n", 126);
    remove(1);
    snapshots().confirm();
    runUntil([&] { return snapshots().lastActionOutput().has_value(); });
    EXPECT_EQ(output(), "cancelled or failed: Error executing command as another user: Request dismissed\n");
}

TEST_F(SnapperScreenTest, failureIsToldWithWhatBecameOfTheSnapshot) {
    tools.removing = [] {};
    answer("Snapshot is in use.\n", 1);
    remove(1);
    snapshots().confirm();
    runWhatIsThere();
    EXPECT_EQ(output(), "cancelled or failed: Snapshot is in use.\nThe snapshot is still there.");
}

TEST_F(SnapperScreenTest, withoutPermissionTheAdministratorIsAsked) {
    tools.removes = false;
    remove(1);
    snapshots().confirm();
    runUntil([&] { return snapshots().lastActionOutput().has_value(); });
    ASSERT_EQ(tools.removals().size(), 2U);
    EXPECT_THAT(tools.removals()[1], testing::StartsWith("/usr/bin/pkexec: "));
    EXPECT_EQ(output(), "The snapshot is gone.");
}

TEST_F(SnapperScreenTest, thinsAfterTheQuestionAndCountsWhatIsGone) {
    list();
    snapshots().thin();
    ASSERT_TRUE(snapshots().asking());
    EXPECT_EQ(snapshots().question().toStdString(), "Thin the snapshots?");
    EXPECT_EQ(snapshots().consequence().toStdString(),
              "The freeable ones are removed, as many as it takes to have 5 GB free. They cannot be brought back.");
    EXPECT_EQ(snapshots().agreement().toStdString(), "Thin 5 GB");
    snapshots().confirm();
    runWhatIsThere();
    EXPECT_THAT(
        tools.removals(),
        ElementsAre(userTool + std::string("/usr/bin/snapper -c root cleanup --free-space 5000000000 number; "
                                           "/usr/bin/snapper -c root cleanup --free-space 5000000000 timeline")));
    EXPECT_EQ(output(), "1 snapshot was removed.");
    tools.removing = [this] { tools.kept.clear(); };
    snapshots().thin();
    snapshots().confirm();
    runWhatIsThere();
    EXPECT_EQ(output(), "2 snapshots were removed.");
}

TEST_F(SnapperScreenTest, thinningThatFreesNothingSaysSo) {
    tools.removing = [] {};
    answer("Could not make enough free space available.\n", 1);
    list();
    snapshots().thin();
    snapshots().confirm();
    runWhatIsThere();
    EXPECT_EQ(output(), "cancelled or failed: Could not make enough free space available.\nNo snapshot was removed.");
}

TEST_F(SnapperScreenTest, listAskedForBeforeTheRemovalProvesNothing) {
    list();
    snapshots().remove(1);
    machine.tasks.hold();
    snapshots().confirm();
    snapshots().reload();
    machine.tasks.runAt(1);
    runWhatIsThere();
    EXPECT_EQ(output(), "") << "still running";
    snapshots().reload();
    machine.tasks.runAt(1);  // read before the removal, and comes after it
    machine.tasks.runAt(0);
    runWhatIsThere();
    EXPECT_EQ(output(), "") << "the list is older than the removal";
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_EQ(output(), "The snapshot is gone.");
}

TEST_F(SnapperScreenTest, refusedListSaysWhoSeesItAndOffersThinningByTheAdministrator) {
    tools.lists = false;
    list();
    EXPECT_FALSE(snapshots().nothing());
    EXPECT_TRUE(snapshots().thinnable());
    EXPECT_EQ(snapshots().note().toStdString(), SystemTexts::wording(SystemTexts::SnapshotsRefused, desktopLinux));
    snapshots().thin();
    EXPECT_FALSE(snapshots().asking()) << "the system asks";
    runWhatIsThere();
    ASSERT_EQ(tools.removals().size(), 1U);
    EXPECT_THAT(tools.removals()[0], testing::StartsWith("/usr/bin/pkexec: "));
    EXPECT_EQ(output(), "What was removed is not known: the list could not be read.");
}

TEST_F(SnapperScreenTest, snapshotsOfZfsAreShownOnly) {
    tools.snapperInstalled = false;
    tools.zfs = "rpool/root@before the trip\t1700000000\t5\t77\nrpool/home@b\t1700000000\t5\t78\n";
    list();
    EXPECT_THAT(names(), ElementsAre("rpool/root@before the trip"));
    EXPECT_EQ(cell(0, SnapshotRows::tagRole), "pinned");
    EXPECT_FALSE(snapshots().nothing());
    EXPECT_FALSE(snapshots().thinnable());
    EXPECT_EQ(snapshots().note().toStdString(), SystemTexts::wording(SystemTexts::SnapshotsOfZfs, desktopLinux));
    snapshots().thin();
    snapshots().remove(0);
    runWhatIsThere();
    EXPECT_FALSE(snapshots().asking());
    EXPECT_FALSE(snapshots().acting());
    EXPECT_THAT(tools.removals(), IsEmpty());
}

TEST_F(SnapperScreenTest, noKeeperOffersNothing) {
    tools.snapperInstalled = false;
    list();
    EXPECT_TRUE(snapshots().nothing());
    EXPECT_FALSE(snapshots().thinnable());
}

}  // namespace zelk
