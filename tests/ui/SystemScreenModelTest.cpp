// SPDX-License-Identifier: MIT
#include <QSignalSpy>

#include "SystemFixture.h"
#include "fakes/RightToLeft.h"

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* adminTool = "/usr/bin/osascript: ";

}  // namespace

TEST_F(SystemModelTest, hasTheTextsOfItsStartPage) {
    EXPECT_EQ(screen().title().toStdString(), "System");
    EXPECT_EQ(screen().subtitle().toStdString(),
              "Reconcile the mystery gap — purgeable space, local snapshots, and SIP-protected areas.");
    EXPECT_EQ(screen().scanLabel().toStdString(), "Run survey");
    EXPECT_EQ(screen().scanningLabel().toStdString(), "Surveying your drive…");
    EXPECT_TRUE(screen().idle());
}

TEST_F(SystemModelTest, showsFiguresOfTheVolume) {
    QSignalSpy changes(&screen(), &SystemScreenModel::volumeChanged);
    model().setVolume(VolumeInfo{1'000, 400, 450});
    EXPECT_EQ(changes.count(), 1);
    EXPECT_TRUE(screen().volumed());
    EXPECT_EQ(screen().totalBytes(), 1'000);
    EXPECT_EQ(screen().usedBytes(), 600);
    EXPECT_EQ(screen().freeBytes(), 400);
    EXPECT_EQ(screen().purgeableBytes(), 50);
}

TEST_F(SystemModelTest, differencesAreNeverBelowZero) {
    model().setVolume(VolumeInfo{1'000, 400, 399});
    EXPECT_EQ(screen().purgeableBytes(), 0);
    model().setVolume(VolumeInfo{1'000, 400, 0});
    EXPECT_EQ(screen().purgeableBytes(), 0);
    model().setVolume(VolumeInfo{1'000, 400, 401});
    EXPECT_EQ(screen().purgeableBytes(), 1);
    model().setVolume(VolumeInfo{400, 401, 401});
    EXPECT_EQ(screen().usedBytes(), 0);
    EXPECT_EQ(screen().freeBytes(), 401);
}

TEST_F(SystemModelTest, hasNoFiguresWithoutVolume) {
    model().setVolume(std::nullopt);
    EXPECT_FALSE(screen().volumed());
    EXPECT_EQ(screen().totalBytes() + screen().usedBytes() + screen().freeBytes() + screen().purgeableBytes(), 0);
}

TEST_F(SystemModelTest, listsDiskImagesOfTheSurvey) {
    machine.directories.file(home + "/vms/a.qcow2", 90'000'000, 0);
    machine.directories.file(home + "/b.dmg", 50'000'000, 0);
    machine.directories.file(home + "/c.iso", 49'999'999, 0);
    EXPECT_FALSE(screen().anyDiskImages());
    survey();
    EXPECT_TRUE(screen().anyDiskImages());
    const DiskImageRows& rows = *screen().diskImages();
    ASSERT_EQ(rows.rowCount(), 2);
    const auto text = [&](int row, int role) { return rows.index(row).data(role).toString().toStdString(); };
    EXPECT_EQ(text(0, DiskImageRows::nameRole), "a.qcow2");
    EXPECT_EQ(text(0, DiskImageRows::folderRole), "/home/me/vms");
    EXPECT_EQ(text(0, DiskImageRows::sizeRole), "90 MB");
    EXPECT_EQ(text(0, DiskImageRows::adviceRole),
              "VM disk. Shut the VM down and compact it from your VM tool (UTM/QEMU).");
    EXPECT_EQ(text(0, DiskImageRows::spokenRole),
              "a.qcow2, /home/me/vms, 90 MB, VM disk. Shut the VM down and compact it from your VM tool (UTM/QEMU).");
    EXPECT_EQ(text(0, DiskImageRows::explainNameRole), "What is a.qcow2?");
    EXPECT_EQ(text(0, DiskImageRows::revealNameRole), "Reveal in Finder, a.qcow2");
    EXPECT_EQ(text(1, DiskImageRows::nameRole), "b.dmg");
    EXPECT_EQ(text(1, DiskImageRows::adviceRole), "Installer / disk image. Delete if you no longer need its contents.");
}

TEST_F(SystemModelTest, keepsDiskImagesDuringAnotherSurvey) {
    machine.directories.file(home + "/b.dmg", 50'000'000, 0);
    addWideFolder(home + "/wide");
    screen();
    survey();
    machine.directories.hold(home + "/wide/inner");
    model().startScan();
    EXPECT_TRUE(model().insights().diskImages.empty());
    EXPECT_TRUE(screen().anyDiskImages());
    letScansDrain();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
}

TEST_F(SystemModelTest, revealsAndExplainsDiskImages) {
    machine.directories.file(home + "/a\xFF.dmg", 50'000'000, 0);
    screen();
    survey();
    for (const int row : {-1, 1}) {
        screen().reveal(row);
        screen().explain(row);
    }
    EXPECT_THAT(machine.workspace.revealed, IsEmpty());
    EXPECT_FALSE(screen().explanation()->shown());
    screen().reveal(0);
    EXPECT_THAT(machine.workspace.revealed, ElementsAre(std::vector<std::string>{home + "/a\xFF.dmg"}));
    screen().explain(0);
    EXPECT_TRUE(screen().explanation()->shown());
    EXPECT_EQ(screen().explanation()->title(), QStringLiteral("Disk image / VM"));
}

TEST_F(SystemModelTest, countsSkippedFolders) {
    screen();
    survey();
    EXPECT_EQ(screen().skippedLine(), QString());
    for (int folder = 0; folder < 1'200; ++folder) {
        const std::string path = home + "/locked" + std::to_string(folder);
        machine.directories.directory(path);
        machine.directories.unreadable(path);
    }
    survey();
    EXPECT_EQ(screen().skippedLine().toStdString(), "1,200 folders skipped during the scan — normal.");
}

TEST_F(SystemModelTest, listsSnapshotsWheneverItsResultsAppear) {
    screen().setOnScreen(true);
    EXPECT_EQ(tools.listings(), 0) << "the start page shows none";
    survey();
    EXPECT_EQ(tools.listings(), 1);
    screen().setOnScreen(true);
    EXPECT_EQ(tools.listings(), 1);
    screen().setOnScreen(false);
    EXPECT_EQ(tools.listings(), 1);
    survey();
    EXPECT_EQ(tools.listings(), 1) << "nobody sees them";
    screen().setOnScreen(true);
    EXPECT_EQ(tools.listings(), 2);
}

TEST_F(SystemModelTest, listsSnapshotsInATaskThatTheUserWaitsFor) {
    machine.tasks.hold();
    snapshots().reload();
    EXPECT_THAT(machine.tasks.waiting(), ElementsAre(TaskPriority::userInitiated));
    EXPECT_TRUE(snapshots().loading());
    EXPECT_EQ(tools.listings(), 0);
    machine.tasks.runNext();
    EXPECT_TRUE(snapshots().loading());
    runWhatIsThere();
    EXPECT_FALSE(snapshots().loading());
    EXPECT_THAT(names(),
                ElementsAre("com.apple.os.update-1", "com.apple.TimeMachine.2024-03-07-101502.local", "NewRoot"));
    machine.tasks.release();
}

TEST_F(SystemModelTest, rowsSayWhatASnapshotIs) {
    list();
    ASSERT_EQ(snapshots().rows()->rowCount(), 3);
    const auto row = [&](int at) {
        std::vector<std::string> cells;
        for (const int role : {SnapshotRows::kindRole, SnapshotRows::noteRole, SnapshotRows::tagRole,
                               SnapshotRows::purgeableRole, SnapshotRows::deleteNameRole})
            cells.push_back(cell(at, role));
        return cells;
    };
    EXPECT_THAT(row(0), ElementsAre("OS update", "", "pinned", "false", "Delete snapshot com.apple.os.update-1"));
    EXPECT_THAT(row(1), ElementsAre("Time Machine", "", "freeable", "true",
                                    "Delete snapshot com.apple.TimeMachine.2024-03-07-101502.local, " +
                                        cell(1, SnapshotRows::dateRole)));
    EXPECT_THAT(row(2), ElementsAre("Time Machine", "", "freeable", "true", "Delete snapshot NewRoot"));
    EXPECT_EQ(cell(2, SnapshotRows::dateRole), "no date");
    EXPECT_EQ(cell(2, SnapshotRows::spokenRole), "Time Machine, no date, freeable");
    EXPECT_EQ(cell(0, SnapshotRows::spokenRole), "OS update, no date, pinned");
}

TEST_F(SystemModelTest, datesAreShortInTheUsersLocale) {
    list();
    // A narrow blank stands before "AM" in newer versions of Qt.
    const auto plain = [](QString text) { return text.replace(QChar(0x202F), u' ').toStdString(); };
    EXPECT_EQ(plain(QString::fromStdString(cell(1, SnapshotRows::dateRole))), "Mar 7, 2024, 10:15 AM");
    const TimePoint time = *snapshots().snapshots()[1].date;
    EXPECT_EQ(plain(shortDate(time, QLocale(QLocale::English, QLocale::UnitedStates))), "Mar 7, 2024, 10:15 AM");
    const std::string german = plain(shortDate(time, QLocale(QLocale::German, QLocale::Germany)));
    EXPECT_EQ(german.substr(0, 3), "7. ") << german;
    EXPECT_NE(german.find(" 2024, 10:15"), std::string::npos) << german;
    for (const QLocale::Language language :
         {QLocale::Japanese, QLocale::Danish, QLocale::Hungarian, QLocale::Arabic, QLocale::French, QLocale::Swedish}) {
        const QLocale locale(language);
        const QString day = locale.dayName(4);
        EXPECT_FALSE(shortDate(time, locale).contains(day)) << QLocale::languageToString(language).toStdString();
    }
}

TEST_F(SystemModelTest, dateStaysTogetherFromRightToLeft) {
    const fakes::RightToLeft direction;
    const QString date = shortDate(1'700'000'000, QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_TRUE(date.startsWith(QStringLiteral("\u2068Nov ")) && date.endsWith(u'\u2069')) << date.toStdString();
    EXPECT_EQ(date.count(u'\u2068'), 1);
}

TEST_F(SystemModelTest, noteSaysWhatIsKnownOfSizes) {
    EXPECT_EQ(snapshots().note(), QString());
    list();
    EXPECT_EQ(snapshots().note().toStdString(),
              "macOS doesn't report a size per snapshot — only whether each can be freed. The purgeable total above is "
              "the number that matters.");
    EXPECT_TRUE(snapshots().thinnable());
    EXPECT_FALSE(snapshots().nothing());
}

TEST_F(SystemModelTest, emptyListOffersNothing) {
    tools.kept.clear();
    list();
    EXPECT_TRUE(snapshots().nothing());
    EXPECT_FALSE(snapshots().thinnable());
    EXPECT_FALSE(snapshots().listed());
    EXPECT_EQ(snapshots().note(), QString());
    snapshots().thin();
    EXPECT_THAT(tools.removals(), IsEmpty());
}

TEST_F(SystemModelTest, laterOfTwoReloadsWins) {
    machine.tasks.hold();
    snapshots().reload();
    snapshots().reload();
    tools.kept.resize(1);
    machine.tasks.runAt(1);
    tools.kept.clear();
    machine.tasks.runAt(0);
    runWhatIsThere();
    EXPECT_THAT(names(), ElementsAre("com.apple.os.update-1"));
    EXPECT_FALSE(snapshots().loading());
}

TEST_F(SystemModelTest, laterReloadReplacesTheEarlierOne) {
    machine.tasks.hold();
    snapshots().reload();
    snapshots().reload();
    machine.tasks.runNext();
    runWhatIsThere();
    EXPECT_EQ(names().size(), 3U);
    tools.kept.clear();
    machine.tasks.runNext();
    runWhatIsThere();
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(SystemModelTest, listThatComesAfterTheScreenIsDropped) {
    machine.tasks.hold();
    snapshots().reload();
    machine.tasks.runNext();
    closeScreen();
    runWhatIsThere();
    snapshots().reload();
    closeScreen();
    machine.tasks.release();
    runWhatIsThere();
}

TEST_F(SystemModelTest, deletesByTheStampOfTheName) {
    answer("Deleted local snapshot '2024-03-07-101502'\n");
    remove(1);
    EXPECT_THAT(tools.removals(),
                ElementsAre(adminTool + std::string("do shell script \"/usr/bin/tmutil deletelocalsnapshots "
                                                    "2024-03-07-101502\" with administrator privileges")));
    EXPECT_EQ(snapshots().lastActionOutput(), "Deleted local snapshot '2024-03-07-101502'\n");
    EXPECT_EQ(tools.listings(), 2);
    EXPECT_FALSE(snapshots().asking()) << "the system asks";
}

TEST_F(SystemModelTest, thinsByTheLineOfTheSystem) {
    answer("Thinned local snapshots:\rone\rtwo\r\n");
    list();
    snapshots().thin();
    EXPECT_TRUE(snapshots().acting());
    runWhatIsThere();
    EXPECT_FALSE(snapshots().acting());
    EXPECT_THAT(tools.removals(),
                ElementsAre(adminTool + std::string("do shell script \"/usr/bin/tmutil thinlocalsnapshots / 5000000000 "
                                                    "4\" with administrator privileges")));
    EXPECT_EQ(output(), "Thinned local snapshots:\none\ntwo\n");
    EXPECT_EQ(tools.listings(), 2);
}

TEST_F(SystemModelTest, toldRefusalAndListsAgain) {
    answer("0:54: execution error: User canceled. (-128)\n", 1);
    remove(1);
    EXPECT_EQ(snapshots().lastActionOutput(), "cancelled or failed: 0:54: execution error: User canceled. (-128)\n");
    EXPECT_EQ(tools.listings(), 2);
}

TEST_F(SystemModelTest, emptyAnswerIsKept) {
    remove(1);
    EXPECT_EQ(snapshots().lastActionOutput(), "");
    EXPECT_EQ(output(), "");
}

TEST_F(SystemModelTest, nameThatMisleadsTheShellIsRefusedWithoutRunning) {
    for (const char* name : {"/", "..", "a;reboot", "$(reboot)"}) {
        tools.kept = {{name, true, 1}};
        remove(0);
        EXPECT_EQ(snapshots().lastActionOutput(), "cancelled or failed: ") << name;
        EXPECT_FALSE(snapshots().acting());
    }
    EXPECT_THAT(tools.removals(), IsEmpty());
    EXPECT_EQ(tools.listings(), 8) << "after each the list is read again";
}

TEST_F(SystemModelTest, neverDeletesPinnedOrMissingRows) {
    list();
    for (const int row : {0, -1, 3}) snapshots().remove(row);
    EXPECT_THAT(tools.removals(), IsEmpty());
    EXPECT_FALSE(snapshots().acting());
}

TEST_F(SystemModelTest, oneRemovalAtATime) {
    list();
    machine.tasks.hold();
    snapshots().remove(1);
    snapshots().remove(2);
    snapshots().thin();
    EXPECT_EQ(machine.tasks.waiting().size(), 1U);
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_EQ(tools.removals().size(), 1U);
    snapshots().remove(2);
    runWhatIsThere();
    EXPECT_EQ(tools.removals().size(), 2U);
}

TEST_F(SystemModelTest, buttonsRestUntilTheListAfterARemoval) {
    answer("Deleted");
    list();
    machine.tasks.hold();
    snapshots().remove(1);
    snapshots().reload();
    machine.tasks.runAt(1);
    runWhatIsThere();
    EXPECT_FALSE(snapshots().loading());
    EXPECT_TRUE(snapshots().acting()) << "the command is running";
    snapshots().reload();
    machine.tasks.runNext();
    runWhatIsThere();
    EXPECT_EQ(output(), "Deleted") << "the answer is complete";
    EXPECT_TRUE(snapshots().acting());
    machine.tasks.runNext();
    runWhatIsThere();
    EXPECT_FALSE(snapshots().loading());
    EXPECT_TRUE(snapshots().acting()) << "this list was asked for before the removal had ended";
    snapshots().remove(2);
    snapshots().thin();
    EXPECT_EQ(machine.tasks.waiting().size(), 1U) << "the list that is awaited, and no other removal";
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_FALSE(snapshots().acting());
    EXPECT_EQ(tools.removals().size(), 1U);
}

TEST_F(SystemModelTest, quittingWaitsForTheCommandOfARemoval) {
    list();
    machine.tasks.hold();
    snapshots().remove(1);
    EXPECT_TRUE(model().removals().underWay());
    machine.tasks.runNext();
    runUntil([&] { return !model().removals().underWay(); });
    EXPECT_TRUE(snapshots().acting()) << "only the list is awaited";
    machine.tasks.release();
    runWhatIsThere();
}

TEST_F(SystemModelTest, screenThatGoesHoldsNoQuitUp) {
    list();
    machine.tasks.hold();
    snapshots().remove(1);
    closeScreen();
    runUntil([&] { return !model().removals().underWay(); });
    machine.tasks.release();
    runWhatIsThere();
}

TEST_F(SystemModelTest, nothingBeginsWhileZelkStops) {
    list();
    const auto other = model().removals().begin(1);
    model().removals().stop();
    snapshots().thin();
    runWhatIsThere();
    EXPECT_THAT(tools.removals(), IsEmpty());
    EXPECT_EQ(snapshots().lastActionOutput(), "cancelled or failed: ");
    EXPECT_FALSE(snapshots().acting());
    other->noteDone();
    runUntil([&] { return !model().removals().underWay(); });
}

TEST_F(SystemModelTest, thousandsAreShownInParts) {
    const auto keep = [this](int count) {
        tools.kept.clear();
        for (int number = 1; number <= count; ++number)
            tools.kept.push_back({"Root" + std::to_string(number), true, number});
        list();
    };
    keep(5'000);
    EXPECT_EQ(snapshots().snapshots().size(), 5'000U);
    EXPECT_EQ(snapshots().rows()->rowCount(), 100);
    EXPECT_EQ(snapshots().more().toStdString(), "4,900 more snapshots are not shown.");
    QSignalSpy changes(&snapshots(), &SnapshotsModel::changed);
    snapshots().showMore();
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(snapshots().rows()->rowCount(), 200);
    EXPECT_EQ(snapshots().more().toStdString(), "4,800 more snapshots are not shown.");
    remove(199);
    EXPECT_THAT(tools.removals(), ElementsAre(testing::HasSubstr("deletelocalsnapshots Root200\"")));
    EXPECT_EQ(snapshots().rows()->rowCount(), 200) << "a reload takes no row away";
    keep(201);
    EXPECT_EQ(snapshots().more().toStdString(), "1 more snapshot is not shown.");
    keep(200);
    EXPECT_EQ(snapshots().more(), QString());
    EXPECT_EQ(snapshots().rows()->rowCount(), 200);
}

TEST_F(SystemModelTest, answerToAScreenThatHasGoneIsDropped) {
    list();
    machine.tasks.hold();
    snapshots().remove(1);
    closeScreen();
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_EQ(tools.removals().size(), 1U);
}

TEST_F(SystemModelTest, newRemovalTakesTheOldAnswerAway) {
    answer("one");
    remove(1);
    EXPECT_EQ(output(), "one");
    machine.tasks.hold();
    snapshots().remove(2);
    EXPECT_EQ(snapshots().lastActionOutput(), std::nullopt);
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_EQ(output(), "one");
}

TEST_F(SystemModelTest, answerIsShownLineByLine) {
    answer("a\rb\nc\n");
    remove(1);
    EXPECT_EQ(output(), "a\nb\nc\n");
    EXPECT_EQ(snapshots().lastActionOutput(), "a\rb\nc\n");
}

TEST_F(SystemModelTest, listThatRepeatsItselfIsShown) {
    tools.kept = {{"NewRoot", true, 1}, {"NewRoot", true, 1}, {"NewRoot", false, 1}};
    list();
    EXPECT_EQ(snapshots().rows()->rowCount(), 3);
    EXPECT_EQ(cell(2, SnapshotRows::tagRole), "pinned");
    tools.kept.resize(1);
    list();
    EXPECT_EQ(snapshots().rows()->rowCount(), 1);
}

}  // namespace zelk
