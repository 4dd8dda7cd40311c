// SPDX-License-Identifier: MIT
#include "ui/screens/reclaim/DryRunModel.h"

#include <gmock/gmock.h>

#include "fakes/EventLoop.h"
#include "fakes/FakePlatform.h"

namespace zelk {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::UnorderedElementsAre;

class DryRunModelTest : public testing::Test {
protected:
    Reclaimable item(const std::string& path, std::uint64_t size) {
        machine.files.addFile(path, {}, size);
        return {path, path, size, "yarn_cache", ReclaimSafety::safe, ReclaimMethod::trash(), 0};
    }
    Reclaimable command(const std::string& path, std::uint64_t size) {
        Reclaimable one = item(path, size);
        one.method = ReclaimMethod::command("/usr/bin/env", {"npm", "cache", "clean", "--force"});
        return one;
    }
    /// Two items for the Trash, 50 MB and 30 MB, and one of 20 MB that a command removes.
    std::vector<Reclaimable> three() {
        return {item("/home/me/a/yarn", 50'000'000), command("/home/me/.npm/_cacache", 20'000'000),
                item("/home/me/b/pods", 30'000'000)};
    }

    DryRunModel& open(std::vector<Reclaimable> items) {
        sheet_ = std::make_unique<DryRunModel>(cleanup, std::move(items), machine.platform(),
                                               DryRunModel::Actions{[this] { events.emplace_back("dismiss"); },
                                                                    [this] { events.emplace_back("rescan"); }});
        return *sheet_;
    }
    DryRunModel& sheet() { return *sheet_; }
    void destroySheet() { sheet_.reset(); }

    void cleanNow() {
        sheet().confirm();
        runUntil([&] { return sheet().isDone(); });
    }
    void emptyNow() {
        sheet().emptyTrash();
        runUntil([&] { return !sheet().emptyingTrash(); });
    }
    std::string text(int row, int role) {
        return sheet().rows()->data(sheet().rows()->index(row), role).toString().toStdString();
    }

    fakes::FakePlatform machine;
    RemovalsModel removals;
    DevCleanupModel cleanup{machine.platform(), removals};
    std::vector<std::string> events;

private:
    std::unique_ptr<DryRunModel> sheet_;
};

}  // namespace

TEST_F(DryRunModelTest, summarizesItemsWithoutTouchingTheDisk) {
    const std::vector<Reclaimable> items = three();
    machine.files.forgetCalls();
    open(items);
    EXPECT_EQ(sheet().line().toStdString(), "2 to Trash · 1 via command · 100 MB to recover");
    EXPECT_EQ(sheet().rows()->rowCount(), 3);
    EXPECT_THAT(machine.files.calls(), IsEmpty());
    EXPECT_THAT(machine.processes.calls(), IsEmpty());
    EXPECT_TRUE(sheet().isReview());
    EXPECT_TRUE(sheet().closable());
    EXPECT_TRUE(sheet().confirmable());
}

TEST_F(DryRunModelTest, listsOneRowPerItemInOrder) {
    open(three());
    using Rows = DryRunRows;
    EXPECT_EQ(text(0, Rows::symbolRole), "trash");
    EXPECT_EQ(text(0, Rows::nameRole), "yarn");
    EXPECT_EQ(text(0, Rows::folderRole), "/home/me/a");
    EXPECT_EQ(text(0, Rows::sizeRole), "50 MB");
    EXPECT_EQ(text(0, Rows::methodRole), "Trash");
    EXPECT_EQ(text(1, Rows::symbolRole), "terminal");
    EXPECT_EQ(text(1, Rows::nameRole), "_cacache");
    EXPECT_EQ(text(1, Rows::folderRole), "/home/me/.npm");
    EXPECT_EQ(text(1, Rows::sizeRole), "20 MB");
    EXPECT_EQ(text(1, Rows::methodRole), "/usr/bin/env npm cache clean --force");
    EXPECT_THAT(text(1, Rows::spokenRole), HasSubstr("_cacache"));
    EXPECT_FALSE(sheet().rows()->data(sheet().rows()->index(3), Rows::nameRole).isValid());
    EXPECT_EQ(sheet().rows()->rowCount(sheet().rows()->index(0)), 0);
}

TEST_F(DryRunModelTest, emptyReviewCannotBeConfirmed) {
    open({});
    EXPECT_EQ(sheet().line().toStdString(), "0 to Trash · 0 via command · 0 bytes to recover");
    EXPECT_EQ(sheet().confirmLabel().toStdString(), "Move 0 bytes to Trash");
    EXPECT_FALSE(sheet().confirmable());
    sheet().confirm();
    EXPECT_TRUE(sheet().isReview());
    EXPECT_FALSE(cleanup.isCleaning());
    sheet().close();
    EXPECT_THAT(events, ElementsAre("dismiss"));
}

TEST_F(DryRunModelTest, hardDeleteIsOffAndChangesConfirmLabel) {
    open(three());
    int changes = 0;
    QObject::connect(&sheet(), &DryRunModel::hardDeleteChanged, &sheet(), [&] { ++changes; });
    EXPECT_FALSE(sheet().hardDelete());
    EXPECT_EQ(sheet().confirmLabel().toStdString(), "Move 100 MB to Trash");
    sheet().setHardDelete(true);
    EXPECT_EQ(sheet().confirmLabel().toStdString(), "Delete 100 MB permanently");
    sheet().setHardDelete(true);
    EXPECT_EQ(changes, 1);
    sheet().setHardDelete(false);
    EXPECT_EQ(sheet().confirmLabel().toStdString(), "Move 100 MB to Trash");
}

TEST_F(DryRunModelTest, cancelDismissesWithoutRemoving) {
    open(three());
    sheet().cancel();
    EXPECT_THAT(events, ElementsAre("dismiss"));
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
    EXPECT_THAT(machine.processes.calls(), IsEmpty());
}

TEST_F(DryRunModelTest, closingReviewCancels) {
    open(three());
    sheet().close();
    EXPECT_THAT(events, ElementsAre("dismiss"));
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
}

TEST_F(DryRunModelTest, ignoresActionsAfterDismissal) {
    open(three());
    sheet().cancel();
    sheet().confirm();
    sheet().cancel();
    sheet().close();
    EXPECT_FALSE(cleanup.isCleaning());
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
    EXPECT_THAT(events, ElementsAre("dismiss"));
}

TEST_F(DryRunModelTest, emptyTrashIsIgnoredAfterFinish) {
    machine.trash.put("old.zip", 5);
    open(three());
    cleanNow();
    sheet().finish();
    sheet().emptyTrash();
    EXPECT_FALSE(sheet().emptyingTrash());
    EXPECT_THAT(machine.files.list(machine.trash.path).value(), Contains("old.zip"));
}

TEST_F(DryRunModelTest, dismissHandlerMayDestroyModel) {
    for (const bool cleaned : {false, true}) {
        std::unique_ptr<DryRunModel> sheet;
        sheet = std::make_unique<DryRunModel>(cleanup, three(), machine.platform(),
                                              DryRunModel::Actions{[&] {
                                                                       sheet.reset();
                                                                       events.emplace_back("dismiss");
                                                                   },
                                                                   [&] { events.emplace_back("rescan"); }});
        DryRunModel* leaving = sheet.get();
        if (cleaned) {
            leaving->confirm();
            runUntil([&] { return leaving->isDone(); });
        }
        leaving->close();
        EXPECT_EQ(sheet, nullptr);
    }
    EXPECT_THAT(events, ElementsAre("dismiss", "dismiss", "rescan"));
}

TEST_F(DryRunModelTest, ignoresEmptyTrashAndFinishBeforeCleaning) {
    open(three());
    EXPECT_FALSE(sheet().emptyable());
    sheet().emptyTrash();
    sheet().finish();
    EXPECT_FALSE(sheet().emptyingTrash());
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(DryRunModelTest, ignoresActionsWhileCleaning) {
    open(three());
    machine.tasks.hold();
    sheet().confirm();
    EXPECT_TRUE(sheet().isCleaning());
    EXPECT_FALSE(sheet().isReview());
    EXPECT_FALSE(sheet().closable());
    EXPECT_FALSE(sheet().confirmable());
    sheet().setHardDelete(true);
    EXPECT_FALSE(sheet().hardDelete());
    sheet().confirm();
    sheet().cancel();
    sheet().close();
    sheet().finish();
    sheet().emptyTrash();
    EXPECT_FALSE(sheet().emptyingTrash());
    EXPECT_THAT(events, IsEmpty());
    machine.tasks.release();
    runUntil([&] { return sheet().isDone(); });
    EXPECT_THAT(machine.trash.trashed(), UnorderedElementsAre("/home/me/a/yarn", "/home/me/b/pods"));
    EXPECT_EQ(machine.processes.calls().size(), 1U);  // no second run
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(DryRunModelTest, resultOffersToEmptyTheTrash) {
    open(three());
    cleanNow();
    EXPECT_EQ(sheet().result().toStdString(), "100 MB · 3 items");
    EXPECT_TRUE(sheet().emptyable());
    EXPECT_TRUE(sheet().closable());
    EXPECT_FALSE(sheet().confirmable());
}

TEST_F(DryRunModelTest, ignoresConfirmAfterCleaning) {
    open(three());
    cleanNow();
    sheet().confirm();
    sheet().cancel();
    EXPECT_TRUE(sheet().isDone());
    EXPECT_FALSE(cleanup.isCleaning());
    EXPECT_EQ(machine.processes.calls().size(), 1U);
    sheet().setHardDelete(true);
    EXPECT_FALSE(sheet().hardDelete());
}

TEST_F(DryRunModelTest, usesSingularForOneItem) {
    open({item("/home/me/a", 1'000'000)});
    cleanNow();
    EXPECT_EQ(sheet().result().toStdString(), "1 MB · 1 item");
}

TEST_F(DryRunModelTest, countsFailedItemsAsSkipped) {
    machine.files.failing = [](const auto& call) { return call.path == "/home/me/a/yarn"; };
    open(three());
    cleanNow();
    EXPECT_EQ(sheet().result().toStdString(), "50 MB · 2 items · 1 skipped");
}

TEST_F(DryRunModelTest, listsSkippedItemsWithReasons) {
    machine.files.failing = [](const auto& call) { return call.path == "/home/me/a/yarn"; };
    open(three());
    EXPECT_TRUE(sheet().skipped().isEmpty());
    EXPECT_FALSE(sheet().anySkipped());
    cleanNow();
    EXPECT_TRUE(sheet().anySkipped());
    ASSERT_EQ(sheet().skipped().size(), 1);
    const QVariantMap skipped = sheet().skipped().front().toMap();
    EXPECT_EQ(skipped.value("name").toString().toStdString(), "/home/me/a/yarn");
    const auto failed = std::find_if(cleanup.lastResults().begin(), cleanup.lastResults().end(), [](const auto& one) {
        return std::holds_alternative<Cleaner::Failed>(one.status);
    });
    EXPECT_EQ(skipped.value("reason").toString().toStdString(), std::get<Cleaner::Failed>(failed->status).error);
    EXPECT_FALSE(skipped.value("reason").toString().isEmpty());
}

TEST_F(DryRunModelTest, countsFailedCommandAsSkipped) {
    machine.processes.outcome = [](const auto&) {
        ChildOutcome outcome;
        outcome.exitStatus = 127;
        return outcome;
    };
    open(three());
    cleanNow();
    EXPECT_EQ(sheet().result().toStdString(), "80 MB · 2 items · 1 skipped");
}

TEST_F(DryRunModelTest, reportsZeroBytesIfAllFailed) {
    machine.files.failing = [](const auto&) { return true; };
    open({item("/home/me/a", 10), item("/home/me/b", 20)});
    cleanNow();
    EXPECT_EQ(sheet().result().toStdString(), "0 bytes · 0 items · 2 skipped");
    EXPECT_TRUE(sheet().emptyable());
}

TEST_F(DryRunModelTest, doesNotCountEmptyItems) {
    open({item("/home/me/a", 0), item("/home/me/b", 1), command("/home/me/c", 0)});
    cleanNow();
    EXPECT_EQ(sheet().result().toStdString(), "1 byte · 1 item");
    EXPECT_THAT(machine.trash.trashed(), UnorderedElementsAre("/home/me/a", "/home/me/b"));
}

TEST_F(DryRunModelTest, countsEmptyFailedItemAsSkipped) {
    machine.files.failing = [](const auto& call) { return call.path == "/home/me/a"; };
    open({item("/home/me/a", 0), item("/home/me/b", 2'000)});
    cleanNow();
    EXPECT_EQ(sheet().result().toStdString(), "2 KB · 1 item · 1 skipped");
}

TEST_F(DryRunModelTest, hardDeleteBypassesTrashWithSameResult) {
    open(three());
    sheet().setHardDelete(true);
    cleanNow();
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
    EXPECT_THAT(machine.files.pathsOf("remove"), UnorderedElementsAre("/home/me/a/yarn", "/home/me/b/pods"));
    EXPECT_EQ(machine.processes.calls().size(), 1U);
    EXPECT_EQ(sheet().result().toStdString(), "100 MB · 3 items");
    EXPECT_TRUE(sheet().emptyable());
}

TEST_F(DryRunModelTest, finishDismissesAndRescansOnce) {
    open(three());
    cleanNow();
    sheet().finish();
    EXPECT_THAT(events, ElementsAre("dismiss", "rescan"));
    sheet().finish();
    sheet().close();
    EXPECT_THAT(events, ElementsAre("dismiss", "rescan"));
}

TEST_F(DryRunModelTest, closingAfterCleaningRescans) {
    open(three());
    cleanNow();
    sheet().close();
    EXPECT_THAT(events, ElementsAre("dismiss", "rescan"));
}

TEST_F(DryRunModelTest, emptiesTheTrash) {
    open(three());
    cleanNow();
    machine.tasks.hold();
    sheet().emptyTrash();
    EXPECT_TRUE(sheet().emptyingTrash());
    EXPECT_FALSE(sheet().closable());
    EXPECT_TRUE(sheet().emptyable());
    sheet().emptyTrash();
    sheet().finish();
    sheet().close();
    EXPECT_THAT(events, IsEmpty());
    EXPECT_EQ(machine.tasks.waiting().size(), 1U);
    machine.tasks.release();
    runUntil([&] { return !sheet().emptyingTrash(); });
    EXPECT_TRUE(sheet().trashEmptied());
    EXPECT_FALSE(sheet().emptyable());
    EXPECT_TRUE(sheet().closable());
    EXPECT_EQ(sheet().result().toStdString(), "100 MB · 3 items");
    EXPECT_THAT(machine.files.list(machine.trash.path).value(), IsEmpty());
    sheet().finish();
    EXPECT_THAT(events, ElementsAre("dismiss", "rescan"));
}

TEST_F(DryRunModelTest, failedEmptyingShowsSameResult) {
    machine.files.failing = [](const auto& call) { return call.operation == "remove"; };
    open(three());
    cleanNow();
    emptyNow();
    EXPECT_THAT(machine.files.list(machine.trash.path).value(), Not(IsEmpty()));
    EXPECT_TRUE(sheet().trashEmptied());
    EXPECT_FALSE(sheet().emptyable());
}

TEST_F(DryRunModelTest, emptyingUnreadableTrashShowsSameResult) {
    open(three());
    cleanNow();
    machine.trash.setAccessible(false);
    emptyNow();
    EXPECT_TRUE(sheet().trashEmptied());
    EXPECT_FALSE(sheet().emptyable());
}

TEST_F(DryRunModelTest, emptiesTheTrashOnlyOnce) {
    open(three());
    cleanNow();
    emptyNow();
    machine.trash.put("later", 5);
    sheet().emptyTrash();
    EXPECT_FALSE(sheet().emptyingTrash());
    runWhatIsThere();
    EXPECT_THAT(machine.files.list(machine.trash.path).value(), Contains("later"));
}

TEST_F(DryRunModelTest, signalsEveryPhaseChange) {
    open(three());
    std::vector<std::string> phases;
    QObject::connect(&sheet(), &DryRunModel::phaseChanged, &sheet(), [&] {
        std::string now = sheet().isReview() ? "review" : sheet().isCleaning() ? "cleaning" : "done";
        if (sheet().emptyingTrash()) now += " emptying";
        if (sheet().trashEmptied()) now += " emptied";
        phases.push_back(now);
    });
    cleanNow();
    emptyNow();
    EXPECT_THAT(phases, ElementsAre("cleaning", "done", "done emptying", "done emptied"));
}

TEST_F(DryRunModelTest, mayBeDestroyedWhileCleaning) {
    open(three());
    machine.tasks.hold();
    sheet().confirm();
    destroySheet();
    machine.tasks.release();
    runUntil([&] { return !cleanup.isCleaning(); });
    EXPECT_EQ(machine.trash.trashed().size(), 2U);
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(DryRunModelTest, ignoresCleaningOfAnotherSheet) {
    open(three());
    machine.tasks.hold();
    sheet().confirm();
    open({item("/home/me/other", 7)});
    EXPECT_TRUE(sheet().isReview());
    machine.tasks.release();
    runUntil([&] { return !cleanup.isCleaning(); });
    EXPECT_TRUE(sheet().isReview());
    cleanNow();
    EXPECT_EQ(sheet().result().toStdString(), "7 bytes · 1 item");
}

TEST_F(DryRunModelTest, mayBeDestroyedWhileEmptying) {
    open(three());
    cleanNow();
    machine.tasks.hold();
    sheet().emptyTrash();
    destroySheet();
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_THAT(machine.files.list(machine.trash.path).value(), IsEmpty());
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(DryRunModelTest, showsHostileNamesRepaired) {
    open({item("/home/me/a\nb/c\xFF", 10)});
    EXPECT_THAT(text(0, DryRunRows::folderRole), Not(HasSubstr("\n")));
    EXPECT_THAT(text(0, DryRunRows::nameRole), HasSubstr("\xEF\xBF\xBD"));
    cleanNow();
    EXPECT_THAT(machine.trash.trashed(), ElementsAre("/home/me/a\nb/c\xFF"));
}

TEST_F(DryRunModelTest, reportsProgress) {
    DryRunModel& sheet = open(three());
    EXPECT_EQ(sheet.share(), 0);
    EXPECT_EQ(sheet.progress(), QString());
    int changes = 0;
    QObject::connect(&sheet, &DryRunModel::progressChanged, &sheet, [&] { ++changes; });
    machine.tasks.hold();
    sheet.confirm();
    EXPECT_EQ(changes, 1) << "the progress is reset";
    EXPECT_EQ(sheet.share(), 0);
    EXPECT_EQ(sheet.progress(), QStringLiteral("0 of 3"));
    for (int run = 0; run < 3; ++run) machine.tasks.runNext();
    runUntil([&] { return changes == 2; });
    EXPECT_DOUBLE_EQ(sheet.share(), 2 / 3.0);
    EXPECT_EQ(sheet.progress(), QStringLiteral("2 of 3"));
    machine.tasks.release();
    runUntil([&] { return sheet.isDone(); });
    EXPECT_EQ(sheet.progress(), QString());
}

TEST_F(DryRunModelTest, emptyingCountsAsRemoval) {
    open(three());
    cleanNow();
    runUntil([&] { return !removals.underWay(); });
    machine.tasks.hold();
    sheet().emptyTrash();
    EXPECT_TRUE(removals.underWay());
    machine.tasks.release();
    runUntil([&] { return !removals.underWay(); });
}

TEST_F(DryRunModelTest, stopBeforeEmptyingKeepsTheTrash) {
    machine.trash.put("old.zip", 7);
    open({item("/home/me/a/yarn", 5)});
    cleanNow();
    runUntil([&] { return !removals.underWay(); });
    machine.tasks.hold();
    sheet().emptyTrash();
    removals.stop();
    machine.tasks.release();
    runUntil([&] { return !sheet().emptyingTrash(); });
    EXPECT_THAT(machine.trash.list(), testing::Optional(Contains(machine.trash.path + "/old.zip")));
}

}  // namespace zelk
