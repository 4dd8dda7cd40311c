// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "SystemViewFixture.h"

namespace zelk {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

using Texts = std::vector<std::string>;

class SystemViewTest : public SystemViewFixture {};

}  // namespace

TEST_F(SystemViewTest, startPageShowsItsTexts) {
    show();
    EXPECT_EQ(seenTexts(),
              (Texts{"System", "Reconcile the mystery gap — purgeable space, local snapshots, and SIP-protected areas.",
                     "Run survey"}));
    EXPECT_EQ(tools.listings(), 0);
    click("moduleScanButton");
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    settle();
    EXPECT_THAT(seenTexts(), Contains("Capacity"));
    EXPECT_EQ(tools.listings(), 1);
}

TEST_F(SystemViewTest, showsTheTextsOfAMacInOrder) {
    machine.directories.file(home + "/vms/win.vdi", 60'000'000'000, 0);
    open();
    EXPECT_EQ(
        seenTexts(),
        (Texts{
            "System & snapshots", "what the treemap can't show",
            // The volume.
            "Capacity", "500 GB", "total", "380 GB", "used", "120 GB", "free", "30 GB", "purgeable",
            "Purgeable space — including freeable snapshots — is reclaimed automatically by macOS under pressure. "
            "It's not junk.",
            // The disk images.
            "Disk images & VMs",
            "Big disk-image and virtual-machine files. These often hold far more space than they really use — "
            "compacting reclaims it.",
            "win.vdi", "/home/me/vms", "VM disk. Power off the VM, then compact from VMware/VirtualBox.", "60 GB",
            // The snapshots.
            "Local snapshots",
            "macOS doesn't report a size per snapshot — only whether each can be freed. The purgeable total above is "
            "the number that matters.",
            "Prefer thinning — let macOS choose what to free.", "Thin 5 GB", "OS update", "no date", "pinned", "delete",
            "Time Machine", "no date", "freeable", "delete", "Time Machine", "no date", "freeable", "delete",
            // What nobody may see.
            "Protected areas",
            "SIP-protected system folders stay invisible to any userspace app — Zelk can't enumerate them, and never "
            "claims to. The gap between your survey and the volume total lives there."}));
}

TEST_F(SystemViewTest, showsTheTextsOfLinux) {
    onLinux();
    tools.kept = {{"daily", true, 5}};
    tools.kept[0].date = "";
    open();
    EXPECT_EQ(
        seenTexts(),
        (Texts{"System & snapshots",
               "what the treemap can't show",
               "Capacity",
               "500 GB",
               "total",
               "380 GB",
               "used",
               "120 GB",
               "free",
               "30 GB",
               "purgeable",
               "Purgeable space is what the system would free by itself under pressure. It's not junk. Snapshots are "
               "no part of it here: each keeps its space until it is removed.",
               "Local snapshots",
               "The size of a snapshot is seldom known — only whether each can be freed. What it alone still holds is "
               "part of the used space above.",
               "Prefer thinning — let snapper choose what to free.",
               "Thin 5 GB",
               "Snapshot",
               "daily",
               "no date",
               "freeable",
               "delete",
               "Protected areas",
               "Folders of the system and of other users stay invisible to your user — Zelk can't enumerate them, and "
               "never claims to. The gap between your survey and the volume total lives there."}));
}

TEST_F(SystemViewTest, showsOneSentenceWithoutVolume) {
    machine.vitals.setVolume(home, std::nullopt);
    open();
    expectTexts({"Volume capacity unavailable."});
    for (const char* text : {"total", "used", "free", "purgeable"}) EXPECT_EQ(count(text), 0) << text;
}

TEST_F(SystemViewTest, showsOneSentenceWithoutSnapshots) {
    tools.kept.clear();
    open();
    expectTexts({"No local snapshots. Nothing to thin."});
    EXPECT_EQ(find("thinSnapshots"), nullptr);
    EXPECT_EQ(find("snapshotNote"), nullptr);
    EXPECT_NE(find("reloadSnapshots"), nullptr);
}

TEST_F(SystemViewTest, showsOnlyProgressWhileLoading) {
    open();
    machine.tasks.hold();
    click("reloadSnapshots");
    QQuickItem* bar = find("snapshotsLoading");
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(roleOf(bar), QAccessible::ProgressBar);
    EXPECT_EQ(nameOf(bar), "Local snapshots");
    for (const char* text : {"Thin 5 GB", "delete", "freeable", "No local snapshots. Nothing to thin."})
        EXPECT_EQ(count(text), 0) << text;
    machine.tasks.release();
    settle();
    EXPECT_EQ(find("snapshotsLoading"), nullptr);
    EXPECT_EQ(count("delete"), 3);
}

TEST_F(SystemViewTest, pageDoesNotJumpWhileLoading) {
    open();
    const double before = showing("Protected areas")->mapToScene({}).y();
    machine.tasks.hold();
    click("reloadSnapshots");
    EXPECT_EQ(showing("Protected areas")->mapToScene({}).y(), before);
    machine.tasks.release();
    settle();
    EXPECT_EQ(showing("Protected areas")->mapToScene({}).y(), before);
}

TEST_F(SystemViewTest, countsFoldersThatWereSkipped) {
    machine.directories.directory(home + "/locked");
    machine.directories.unreadable(home + "/locked");
    open();
    expectTexts({"1 folders skipped during the scan — normal."});
    close();
}

TEST_F(SystemViewTest, pinnedSnapshotCannotBeDeleted) {
    open();
    const QQuickItem* pinned = find("deleteSnapshot0");
    const QQuickItem* freeable = find("deleteSnapshot1");
    ASSERT_NE(pinned, nullptr);
    ASSERT_NE(freeable, nullptr);
    EXPECT_FALSE(pinned->isEnabled());
    EXPECT_NEAR(shownOpacity(pinned), 0.4, 0.001);
    EXPECT_TRUE(freeable->isEnabled());
    EXPECT_EQ(shownOpacity(freeable), 1);
    click("deleteSnapshot0");
    EXPECT_THAT(tools.removals(), IsEmpty());
    EXPECT_EQ(showing("pinned")->parentItem()->property("ink").value<QColor>(), singleton<Theme>("Theme").inkSoft());
    EXPECT_EQ(showing("freeable")->parentItem()->property("ink").value<QColor>(), QColor(50, 199, 123));
}

TEST_F(SystemViewTest, deletesWithTheMouseAndShowsTheAnswer) {
    open();
    answer("Deleted local snapshot 'NewRoot'\r");
    tools.removing = [this] { tools.kept.erase(tools.kept.begin() + 1); };
    click("deleteSnapshot1");
    settle();
    EXPECT_THAT(tools.removals(), ElementsAre(testing::HasSubstr("deletelocalsnapshots NewRoot\"")));
    EXPECT_EQ(count("delete"), 2);
    QQuickItem* output = find("snapshotOutput");
    ASSERT_NE(output, nullptr);
    EXPECT_EQ(output->property("text").toString().toStdString(), "Deleted local snapshot 'NewRoot'\n");
    EXPECT_EQ(output->property("font").value<QFont>().family(), singleton<Theme>("Theme").fixedFont());
    EXPECT_EQ(roleOf(output), QAccessible::AlertMessage);
    EXPECT_EQ(nameOf(output), "Deleted local snapshot 'NewRoot'\n");
}

TEST_F(SystemViewTest, answerIsBroughtIntoSight) {
    for (int number = 4; number < 30; ++number) tools.kept.push_back({"Root" + std::to_string(number), true, number});
    open({900, 620});
    answer("Deleted");
    QQuickItem* button = find("deleteSnapshot1");
    ASSERT_NE(button, nullptr);
    button->forceActiveFocus(Qt::TabFocusReason);
    settle();
    press(Qt::Key_Return);
    settle();
    runWhatIsThere();
    settle();
    const QQuickItem* card = find("snapshotOutputCard");
    ASSERT_NE(card, nullptr);
    EXPECT_TRUE(QRectF(QPointF(), window().size()).contains(card->mapRectToScene(card->boundingRect())));
}

TEST_F(SystemViewTest, buttonsRestWhileTheSystemAsks) {
    open();
    machine.tasks.hold();
    click("thinSnapshots");
    EXPECT_FALSE(find("thinSnapshots")->isEnabled());
    for (const char* name : {"deleteSnapshot0", "deleteSnapshot1", "deleteSnapshot2"})
        EXPECT_FALSE(find(name)->isEnabled()) << name;
    QQuickItem* spinner = find("snapshotSpinner");
    ASSERT_NE(spinner, nullptr);
    EXPECT_EQ(roleOf(spinner), QAccessible::ProgressBar);
    EXPECT_EQ(nameOf(spinner), "Removing snapshots");
    EXPECT_EQ(focusName(), "Reload the local snapshots") << "the button that was pressed rests";
    EXPECT_TRUE(find("reloadSnapshots")->isEnabled());
    click("reloadSnapshots");
    EXPECT_EQ(find("thinSnapshots"), nullptr);
    EXPECT_NE(find("snapshotSpinner"), nullptr) << "also where the list is hidden";
    machine.tasks.release();
    settle();
    EXPECT_TRUE(find("thinSnapshots")->isEnabled());
    EXPECT_EQ(find("snapshotSpinner"), nullptr);
}

TEST_F(SystemViewTest, thousandsAreShownInParts) {
    for (int number = 4; number <= 5'000; ++number)
        tools.kept.push_back({"Root" + std::to_string(number), true, number});
    open();
    EXPECT_EQ(count("delete"), 100);
    expectTexts({"4,900 more snapshots are not shown.", "Show more"});
    const auto showMore = [this] {
        QQuickItem* button = find("showMoreSnapshots");
        ASSERT_NE(button, nullptr);
        EXPECT_EQ(QAccessible::queryAccessibleInterface(button)->text(QAccessible::Description).toStdString(),
                  snapshots().more().toStdString());
        button->forceActiveFocus(Qt::TabFocusReason);
        press(Qt::Key_Return);
    };
    showMore();
    EXPECT_EQ(count("delete"), 200);
    EXPECT_EQ(focusName(), "Delete snapshot Root101");
    EXPECT_TRUE(focusIsRinged());
    expectFocusInSight();
    tools.kept.resize(250);
    snapshots().reload();
    settle();
    expectTexts({"50 more snapshots are not shown."});
    showMore();
    EXPECT_EQ(count("delete"), 250);
    EXPECT_EQ(find("showMoreSnapshots"), nullptr);
    EXPECT_EQ(focusName(), "Delete snapshot Root201");
}

TEST_F(SystemViewTest, keyboardAloneDeletes) {
    open();
    for (int stop = 0; stop < 10 && focusName() != "Delete snapshot OldRoot"; ++stop) press(Qt::Key_Tab);
    ASSERT_EQ(focusName(), "Delete snapshot OldRoot");
    EXPECT_TRUE(focusIsRinged());
    press(Qt::Key_Return);
    settle();
    EXPECT_EQ(tools.removals().size(), 1U);
    EXPECT_EQ(focusName(), "Reload the local snapshots");
    EXPECT_TRUE(focusIsRinged());
    press(Qt::Key_Space);
    settle();
    EXPECT_EQ(tools.listings(), 3);
}

TEST_F(SystemViewTest, tabVisitsControlsInOrder) {
    machine.directories.file(home + "/vms/win.vdi", 60'000'000'000, 0);
    open();
    press(Qt::Key_Tab);
    const Texts order = tabOrder();
    EXPECT_THAT(order,
                testing::IsSupersetOf({"What is win.vdi?", "Reveal in Finder, win.vdi", "Reload the local snapshots",
                                       "Thin 5 GB", "Delete snapshot NewRoot", "Delete snapshot OldRoot"}));
    EXPECT_THAT(order, Not(Contains("Delete snapshot com.apple.os.update-1")));
    expectAllControlsNamed();
}

TEST_F(SystemViewTest, scrollsToTheFocusedControl) {
    for (int number = 4; number < 20; ++number) tools.kept.push_back({"Root" + std::to_string(number), true, number});
    open({900, 620});
    for (int stop = 0; stop < 25; ++stop) {
        press(Qt::Key_Tab);
        expectFocusInSight();
    }
}

TEST_F(SystemViewTest, rowsAreReadAsOne) {
    machine.directories.file(home + "/vms/win.vdi", 60'000'000'000, 0);
    open();
    EXPECT_THAT(spoken(QAccessible::ListItem),
                ElementsAre("win.vdi, /home/me/vms, 60 GB, VM disk. Power off the VM, then compact from "
                            "VMware/VirtualBox.",
                            "OS update, no date, pinned", "Time Machine, no date, freeable",
                            "Time Machine, no date, freeable"));
    std::vector<Texts> inside;
    for (QQuickItem* item : seen())
        if (item->property("spoken").isValid() && roleOf(item) == QAccessible::ListItem)
            inside.push_back(namesInside(item));
    EXPECT_THAT(inside, ElementsAre(Texts{"What is win.vdi?", "Reveal in Finder, win.vdi"},
                                    Texts{"Delete snapshot com.apple.os.update-1"}, Texts{"Delete snapshot NewRoot"},
                                    Texts{"Delete snapshot OldRoot"}));
}

TEST_F(SystemViewTest, explainsAndRevealsDiskImages) {
    machine.directories.file(home + "/vms/win.vdi", 60'000'000'000, 0);
    open();
    click("revealImage0");
    EXPECT_THAT(machine.workspace.revealed, ElementsAre(Texts{home + "/vms/win.vdi"}));
    click("explainImage0");
    ASSERT_NE(find("explanationDone"), nullptr);
    EXPECT_EQ(find("explanationTitle")->property("text").toString(), QStringLiteral("Disk image / VM"));
    press(Qt::Key_Escape);
    EXPECT_EQ(find("explanationDone"), nullptr);
    EXPECT_NE(symbol("externaldrive.fill"), nullptr);
    EXPECT_NE(symbol("magnifyingglass"), nullptr);
    EXPECT_NE(symbol("arrow.clockwise"), nullptr);
}

TEST_F(SystemViewTest, refusedListOffersThinning) {
    onLinux();
    tools.lists = false;
    open();
    expectTexts(
        {"Snapper keeps snapshots here, but did not show them. It answers those users whom its configuration "
         "allows.",
         "Thin 5 GB"});
    EXPECT_EQ(count("No local snapshots. Nothing to thin."), 0);
}

TEST_F(SystemViewTest, questionHasNoDefaultButton) {
    onLinux();
    open();
    click("deleteSnapshot1");
    ASSERT_NE(find("removeSnapshots"), nullptr);
    expectTexts({"Delete this snapshot?", "Cancel", "Delete"});
    EXPECT_EQ(focusName(), "Cancel");
    press(Qt::Key_Return);
    EXPECT_EQ(find("removeSnapshots"), nullptr);
    EXPECT_THAT(tools.removals(), IsEmpty());
    click("deleteSnapshot1");
    press(Qt::Key_Escape);
    EXPECT_EQ(find("removeSnapshots"), nullptr);
    EXPECT_THAT(tools.removals(), IsEmpty());
}

TEST_F(SystemViewTest, cancelReturnsToTheButton) {
    onLinux();
    open();
    for (int stop = 0; stop < 10 && focusName() != "Delete snapshot OldRoot"; ++stop) press(Qt::Key_Tab);
    press(Qt::Key_Return);
    ASSERT_NE(find("removeSnapshots"), nullptr);
    press(Qt::Key_Escape);
    EXPECT_EQ(focusName(), "Delete snapshot OldRoot");
    EXPECT_TRUE(focusIsRinged());
}

TEST_F(SystemViewTest, yesDeletesAndTellsWhatBecameOfIt) {
    onLinux();
    open();
    tools.removing = [this] { tools.kept.pop_back(); };
    for (int stop = 0; stop < 10 && focusName() != "Delete snapshot OldRoot"; ++stop) press(Qt::Key_Tab);
    press(Qt::Key_Return);
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), "Delete");
    press(Qt::Key_Space);
    settle();
    EXPECT_EQ(find("removeSnapshots"), nullptr);
    expectTexts({"The snapshot is gone."});
    EXPECT_EQ(focusName(), "Reload the local snapshots");
    EXPECT_EQ(count("delete"), 2);
}

TEST_F(SystemViewTest, returningToTheScreenListsAgainAndKeepsTheKeyboardSomewhere) {
    open();
    for (int stop = 0; stop < 10 && focusName() != "Delete snapshot OldRoot"; ++stop) press(Qt::Key_Tab);
    view().setVisible(false);
    machine.tasks.hold();
    view().setVisible(true);
    settle();
    EXPECT_EQ(machine.tasks.waiting().size(), 1U);
    press(Qt::Key_Return);
    EXPECT_THAT(tools.removals(), IsEmpty()) << "the button is hidden";
    machine.tasks.release();
    settle();
}

}  // namespace zelk
