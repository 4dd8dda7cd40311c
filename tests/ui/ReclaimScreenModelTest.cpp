// SPDX-License-Identifier: MIT
#include "ui/screens/reclaim/ReclaimScreenModel.h"

#include <gmock/gmock.h>

#include "ui/ReclaimFixture.h"

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using Audience = AppModel::Audience;

class ReclaimScreen : public ReclaimFixture {
protected:
    const CleanupSelection& selection() { return screen().cleanup().selection(); }
    DryRunModel& sheet() { return *screen().dryRun(); }
    std::unordered_set<std::string> idsInSheet() {
        std::unordered_set<std::string> ids;
        for (const Reclaimable& item : sheet().rows()->items()) ids.insert(item.id);
        return ids;
    }
    std::string face() {
        std::string faces;
        if (screen().idle()) faces += "idle ";
        if (screen().scanning()) faces += "scanning ";
        if (screen().nothing()) faces += "nothing ";
        if (screen().byCategory()) faces += "byCategory ";
        if (screen().byItem()) faces += "byItem ";
        return faces;
    }
    void cleanNow() {
        sheet().confirm();
        runUntil([&] { return sheet().isDone(); });
    }
};

}  // namespace

TEST_F(ReclaimScreen, hasFixedTexts) {
    EXPECT_EQ(screen().title().toStdString(), "Reclaim");
    EXPECT_EQ(screen().subtitle().toStdString(), "Clear caches, logs, and developer junk — safely, to the Trash.");
    EXPECT_EQ(screen().scanLabel().toStdString(), "Scan for junk");
    EXPECT_EQ(screen().scanningLabel().toStdString(), "Looking for reclaimable junk…");
    EXPECT_EQ(screen().symbol().toStdString(), "sparkles");
    EXPECT_EQ(screen().tint(), QColor(50, 199, 123));
}

TEST_F(ReclaimScreen, showsOneFaceAtATime) {
    fillJunk();
    std::vector<std::string> faces;
    QObject::connect(&screen(), &ReclaimScreenModel::faceChanged, &screen(), [&] {
        if (faces.empty() || faces.back() != face()) faces.push_back(face());
    });
    EXPECT_EQ(face(), "idle ");
    surveyFor(Audience::normal);
    model().setAudience(Audience::developer);
    survey();
    // Neither "idle" nor "nothing" appears in between.
    EXPECT_THAT(faces, ElementsAre("scanning ", "byCategory ", "byItem ", "scanning ", "byItem "));
}

TEST_F(ReclaimScreen, reportsCleanDriveToBothAudiences) {
    machine.directories.file(home + "/letter.txt", 10);
    surveyFor(Audience::normal);
    EXPECT_EQ(face(), "nothing ");
    model().setAudience(Audience::developer);
    EXPECT_EQ(face(), "nothing ");
}

TEST_F(ReclaimScreen, buttonStartsSurvey) {
    fillJunk();
    screen().scan();
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
    EXPECT_EQ(face(), "scanning ");
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    EXPECT_EQ(face(), "byCategory ");
}

TEST_F(ReclaimScreen, cancelledSurveyReturnsToIdle) {
    fillJunk();
    surveyFor(Audience::developer);
    EXPECT_EQ(selection().selected().size(), 6U);
    machine.directories.hold(home + "/projects");
    model().startScan();
    model().cancelScan();
    letScansDrain();
    EXPECT_EQ(face(), "idle ");
    EXPECT_THAT(selection().selected(), IsEmpty());
}

// When the selection is seeded.

TEST_F(ReclaimScreen, itemViewSeedsWhenShown) {
    fillJunk();
    model().setAudience(Audience::developer);
    screen();
    survey();
    EXPECT_THAT(selection().selected(), IsEmpty());
    EXPECT_EQ(machine.workspace.runningReads, 0);
    screen().setOnScreen(true);
    EXPECT_THAT(selection().selected(),
                UnorderedElementsAre(npm, cursorCache, slackCache, yarn, appModules, webModules));
    EXPECT_EQ(selection().seededFor(), 7U);
}

TEST_F(ReclaimScreen, switchToDeveloperSeedsWhileShown) {
    fillJunk();
    screen();
    survey();
    screen().setOnScreen(true);
    EXPECT_EQ(selection().seededFor(), 0U);  // the category view does not seed
    model().setAudience(Audience::developer);
    EXPECT_EQ(selection().seededFor(), 7U);
}

TEST_F(ReclaimScreen, audienceChangeDoesNotSeedWhileHidden) {
    fillJunk();
    screen();
    survey();
    model().setAudience(Audience::developer);
    EXPECT_EQ(selection().seededFor(), 0U);
}

TEST_F(ReclaimScreen, surveySeedsForBothAudiencesWhileShown) {
    fillJunk();
    for (const Audience audience : {Audience::normal, Audience::developer}) {
        ReclaimScreenModel watched(model());
        model().setAudience(audience);
        watched.setOnScreen(true);
        survey();
        EXPECT_EQ(watched.cleanup().selection().selected().size(), 6U);
    }
}

TEST_F(ReclaimScreen, surveyDoesNotSeedWhileHidden) {
    fillJunk();
    for (const Audience audience : {Audience::normal, Audience::developer}) {
        model().setAudience(audience);
        screen();
        survey();
        EXPECT_EQ(selection().seededFor(), 0U);
    }
}

TEST_F(ReclaimScreen, hiddenSurveyWithSameCountKeepsSelection) {
    fillJunk();
    machine.workspace.running = {"Cursor"};
    surveyFor(Audience::developer);
    screen().items()->setAgeDays(0);
    screen().items()->toggle(0);  // deselects Yarn
    screen().setOnScreen(false);
    machine.workspace.running = {"Slack"};
    survey();
    screen().setOnScreen(true);
    EXPECT_FALSE(selection().selected().contains(yarn));
    EXPECT_THAT(selection().runningConflicts(), ElementsAre(testing::Pair(cursorCache, "Cursor")));
    EXPECT_EQ(machine.workspace.runningReads, 1);
}

TEST_F(ReclaimScreen, hiddenSurveyWithOtherCountSeedsWhenShown) {
    fillJunk();
    surveyFor(Audience::developer);
    screen().items()->toggle(0);
    screen().setOnScreen(false);
    put(home + "/Library/Caches/CocoaPods", megabyte);
    survey();
    EXPECT_EQ(selection().seededFor(), 7U);
    screen().setOnScreen(true);
    EXPECT_EQ(selection().seededFor(), 8U);
    EXPECT_TRUE(selection().selected().contains(yarn));
}

TEST_F(ReclaimScreen, newSurveyClearsSelectionWhileShown) {
    fillJunk();
    surveyFor(Audience::developer);
    machine.tasks.hold();
    model().startScan();
    EXPECT_EQ(selection().seededFor(), 0U);
    EXPECT_THAT(selection().selected(), IsEmpty());
    machine.tasks.release();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    EXPECT_EQ(selection().selected().size(), 6U);
}

TEST_F(ReclaimScreen, removedItemReseedsWhileShown) {
    fillJunk();
    surveyFor(Audience::normal);
    EXPECT_EQ(selection().seededFor(), 0U);
    loseItem(yarn);
    EXPECT_EQ(selection().seededFor(), 6U);
    model().setAudience(Audience::developer);
    loseItem(npm);
    EXPECT_EQ(selection().seededFor(), 5U);
    screen().setOnScreen(false);
    loseItem(webModules);
    EXPECT_EQ(selection().seededFor(), 5U);
}

// The review.

TEST_F(ReclaimScreen, reviewTakesChosenCategories) {
    fillJunk();
    surveyFor(Audience::normal);
    screen().categories()->review();
    EXPECT_TRUE(screen().reviewing());
    EXPECT_THAT(idsInSheet(), UnorderedElementsAre(npm, cursorCache, slackCache, yarn));
    EXPECT_EQ(selection().selected(), idsInSheet());
    EXPECT_EQ(sheet().line().toStdString(), "3 to Trash · 1 via command · 87 MB to recover");
}

TEST_F(ReclaimScreen, reviewOfCategoriesClearsAgeFilter) {
    fillJunk();
    surveyFor(Audience::normal);
    screen().categories()->review();
    sheet().cancel();
    EXPECT_FALSE(screen().reviewing());
    EXPECT_EQ(screen().cleanup().ageDays(), 0);
    model().setAudience(Audience::developer);
    EXPECT_EQ(screen().items()->ageText().toStdString(), "all");
    EXPECT_EQ(screen().items()->shownText().toStdString(), "7 of 7 shown");
}

TEST_F(ReclaimScreen, reviewWithoutCategoryDoesNothing) {
    fillJunk();
    surveyFor(Audience::normal);
    screen().categories()->chooseNone();
    screen().categories()->review();
    EXPECT_FALSE(screen().reviewing());
    EXPECT_EQ(screen().dryRun(), nullptr);
    EXPECT_EQ(screen().cleanup().ageDays(), 14);
}

TEST_F(ReclaimScreen, reviewOfCategoriesDoesNotCheckRunningApplications) {
    fillJunk();
    screen();
    survey();
    machine.workspace.running = {"Cursor"};
    screen().setOnScreen(true);
    screen().categories()->review();
    EXPECT_TRUE(idsInSheet().contains(cursorCache));  // nothing has checked what is running
    EXPECT_EQ(machine.workspace.runningReads, 0);
}

TEST_F(ReclaimScreen, reviewOfCategoriesSkipsItemsInUseWhenSeeded) {
    fillJunk();
    machine.workspace.running = {"Cursor"};
    screen().setOnScreen(true);
    survey();  // seeds, as the screen is shown
    machine.workspace.running = {};
    screen().categories()->review();
    EXPECT_THAT(idsInSheet(), UnorderedElementsAre(npm, slackCache, yarn));
    EXPECT_TRUE(selection().selected().contains(cursorCache));
}

TEST_F(ReclaimScreen, reviewIsEmptyIfEveryItemIsInUse) {
    fillJunk();
    machine.workspace.running = {"Cursor", "Slack"};
    screen().setOnScreen(true);
    survey();
    screen().categories()->chooseNone();
    screen().categories()->toggle(4);
    EXPECT_TRUE(screen().categories()->reviewable());
    screen().categories()->review();
    EXPECT_TRUE(screen().reviewing());
    EXPECT_THAT(idsInSheet(), IsEmpty());
    EXPECT_EQ(sheet().line().toStdString(), "0 to Trash · 0 via command · 0 bytes to recover");
    EXPECT_FALSE(sheet().confirmable());
}

TEST_F(ReclaimScreen, openReviewKeepsItemsDuringSurvey) {
    fillJunk();
    surveyFor(Audience::normal);
    screen().categories()->review();
    const auto before = idsInSheet();
    survey();
    loseItem(yarn);
    EXPECT_TRUE(screen().reviewing());
    EXPECT_EQ(idsInSheet(), before);
}

TEST_F(ReclaimScreen, secondReviewStartsFresh) {
    fillJunk();
    surveyFor(Audience::developer);
    screen().items()->clean();
    sheet().setHardDelete(true);
    sheet().cancel();
    screen().items()->toggle(0);
    screen().items()->clean();
    EXPECT_FALSE(sheet().hardDelete());
    EXPECT_EQ(idsInSheet().size(), 3U);
}

TEST_F(ReclaimScreen, cleanupIsFollowedByOneSurvey) {
    fillJunk();
    surveyFor(Audience::normal);
    screen().categories()->review();
    takeSignals();
    cleanNow();
    EXPECT_EQ(timesSignalled("scanPhase"), 0);
    sheet().finish();
    EXPECT_FALSE(screen().reviewing());
    EXPECT_EQ(model().scanPhase(), Phase::scanning);
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    EXPECT_EQ(timesSignalled("scanPhase"), 2);
    EXPECT_EQ(machine.trash.trashed().size(), 3U);
}

TEST_F(ReclaimScreen, cancelledReviewStartsNoSurvey) {
    fillJunk();
    surveyFor(Audience::normal);
    screen().categories()->review();
    takeSignals();
    sheet().close();
    EXPECT_FALSE(screen().reviewing());
    EXPECT_EQ(timesSignalled("scanPhase"), 0);
}

TEST_F(ReclaimScreen, emptyingFromReviewKeepsTrashFieldsOfModel) {
    fillJunk();
    machine.trash.put("old.zip", 7'000'000);
    surveyFor(Audience::normal);
    const std::int64_t before = model().trashBytes();
    screen().categories()->review();
    cleanNow();
    takeSignals();
    sheet().emptyTrash();
    runUntil([&] { return sheet().trashEmptied(); });
    EXPECT_EQ(model().trashBytes(), before);
    EXPECT_FALSE(model().emptyingTrash());
    EXPECT_THAT(takeSignals(), IsEmpty());
}

TEST_F(ReclaimScreen, oneClickCleanupIgnoresRunningApplications) {
    put(cursorCache, 5 * megabyte, 1);
    machine.workspace.running = {"Cursor"};
    surveyFor(Audience::developer);
    screen().items()->setAgeDays(0);
    EXPECT_FALSE(screen().items()->cleanable());
    const int reads = machine.workspace.runningReads;
    model().cleanSafeCaches();
    runUntil([&] { return model().scanPhase() == Phase::scanning; });
    EXPECT_THAT(machine.trash.trashed(), ElementsAre(cursorCache));
    EXPECT_FALSE(screen().reviewing());
    EXPECT_EQ(machine.workspace.runningReads, reads);
    runUntil([&] { return model().scanPhase() == Phase::finished; });
}

TEST_F(ReclaimScreen, mayBeDestroyedDuringCleanup) {
    fillJunk();
    surveyFor(Audience::normal);
    screen().categories()->review();
    machine.tasks.hold();
    sheet().confirm();
    destroyScreen();
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_EQ(machine.trash.trashed().size(), 3U);
    EXPECT_EQ(model().scanPhase(), Phase::finished);
}

}  // namespace zelk
