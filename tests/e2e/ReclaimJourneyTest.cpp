// SPDX-License-Identifier: MIT
// Cleans whole categories, with the mouse and with the keyboard alone.
#include <gmock/gmock.h>

#include <QAction>

#include "ReclaimingFixture.h"

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class Reclaiming : public ReclaimingFixture {};

const std::vector<std::string> safeCategories{"yarn_cache", "npm_cache", "electron_cache"};

}  // namespace

TEST_F(Reclaiming, selectsCategoriesByRowBubbleAndMenu) {
    surveyByMouse();
    EXPECT_THAT(cells("categoryList", "identity"),
                ElementsAre("yarn_cache", "ios_backups", "node_modules", "npm_cache", "electron_cache"));
    EXPECT_EQ(chosen(), safeCategories);
    EXPECT_TRUE(shows(QStringLiteral("3 items · 59 MB")));

    clickText("node_modules");
    EXPECT_THAT(chosen(), ElementsAre("yarn_cache", "node_modules", "npm_cache", "electron_cache"));
    EXPECT_TRUE(shows(QStringLiteral("5 items · 71 MB")));
    clickBubble(window(), "categoryMap", "yarn_cache");
    EXPECT_THAT(chosen(), ElementsAre("node_modules", "npm_cache", "electron_cache"));
    clickBubble(window(), "categoryMap", "yarn_cache");
    EXPECT_EQ(textOf(window(), "selectMenu"), "4");

    chooseInMenu("All");
    EXPECT_EQ(chosen().size(), 5U);
    chooseInMenu("None");
    EXPECT_THAT(chosen(), IsEmpty());
    EXPECT_TRUE(shows(QStringLiteral("No categories selected")));
    EXPECT_EQ(textOf(window(), "selectMenu"), "None");
    click("reviewButton");
    EXPECT_EQ(control(window(), "dryRunList"), nullptr) << "there is nothing to review";
    chooseInMenu("Safe only");
    EXPECT_EQ(chosen(), safeCategories);
}

TEST_F(Reclaiming, reviewListsSelectionAndMovesItToTrash) {
    surveyByMouse();
    clickText("Yarn cache");
    clickText("node_modules");
    click("reviewButton");
    untilReviewed();
    EXPECT_THAT(reviewed(), UnorderedElementsAre(modules, youngModules, npm, cursor));
    EXPECT_TRUE(shows(QStringLiteral("3 to Trash · 1 via command · 21 MB to recover")));
    EXPECT_EQ(textOf(window(), "confirmCleanup"), "Move 21 MB to Trash");
    click("permanentSwitch");
    EXPECT_EQ(textOf(window(), "confirmCleanup"), "Delete 21 MB permanently");
    click("permanentSwitch");
    EXPECT_EQ(textOf(window(), "confirmCleanup"), "Move 21 MB to Trash");
    expectNothingHappened();

    click("confirmCleanup");
    untilDone();
    EXPECT_TRUE(shows(QStringLiteral("Moved to the Trash")));
    EXPECT_EQ(textOf(window(), "cleanupResult"), "21 MB · 4 items");
    EXPECT_THAT(machine.trash.trashed(), UnorderedElementsAre(modules, youngModules, cursor));
    EXPECT_THAT(machine.files.pathsOf("remove"), IsEmpty());
    EXPECT_THAT(machine.processes.calls(),
                ElementsAre(fakes::FakeProcesses::Call{"/usr/bin/env", {"npm", "cache", "clean", "--force"}}));
    EXPECT_EQ(model().history().size(), 1U);

    click("keepInTrash");
    untilClosed();
    untilSurveyed(2);
    EXPECT_THAT(machine.trash.list(), testing::Optional(testing::Contains(machine.trash.path + "/old.zip")));
}

TEST_F(Reclaiming, openReviewSurvivesSurvey) {
    surveyByMouse();
    click("reviewButton");
    untilReviewed();
    click("permanentSwitch");
    const QQuickItem* list = control(window(), "dryRunList");
    model().startScan();  // as from the status item
    untilSurveyed(2);
    EXPECT_EQ(control(window(), "dryRunList"), list);
    EXPECT_EQ(focusName(), QStringLiteral("permanentSwitch"));
    press(Qt::Key_Space);
    EXPECT_EQ(textOf(window(), "confirmCleanup"), "Move 59 MB to Trash");
    EXPECT_THAT(machine.files.pathsOf("remove"), IsEmpty());
    press(Qt::Key_Escape);
    untilClosed();
    EXPECT_EQ(focusName(), QStringLiteral("reviewButton"));
}

TEST_F(Reclaiming, cleanupDuringSurveyIsFollowedByAnother) {
    surveyByMouse();
    click("reviewButton");
    untilReviewed();
    machine.directories.hold(home + "/wide/inner");
    model().startScan();  // as from the status item
    click("confirmCleanup");
    untilDone();
    click("keepInTrash");
    untilClosed();
    EXPECT_EQ(model().scanPhase(), AppModel::ScanPhase::scanning);
    EXPECT_EQ(model().history().size(), 1U);
    machine.directories.release();
    untilSurveyed(3);
}

TEST_F(Reclaiming, emptiesTrashFromResult) {
    surveyByMouse();
    click("reviewButton");
    untilReviewed();
    click("confirmCleanup");
    untilDone();
    click("emptyTrash");
    runUntil([&] { return control(window(), "cleanupDone") != nullptr; });
    EXPECT_TRUE(shows(QStringLiteral("Space reclaimed")));
    EXPECT_TRUE(shows(QStringLiteral("The Trash was emptied. Your free space is now updated.")));
    EXPECT_THAT(machine.trash.list(), testing::Optional(IsEmpty()));
    EXPECT_EQ(control(window(), "keepInTrash"), nullptr);
    EXPECT_EQ(model().history().size(), 1U);
    click("cleanupDone");
    untilClosed();
    untilSurveyed(2);
}

TEST_F(Reclaiming, permanentDeletionBypassesTrash) {
    surveyByMouse();
    click("reviewButton");
    untilReviewed();
    click("permanentSwitch");
    press(Qt::Key_Return);  // only toggles the focused switch
    EXPECT_EQ(textOf(window(), "confirmCleanup"), "Move 59 MB to Trash");
    press(Qt::Key_Return);
    click("confirmCleanup");
    untilDone();
    EXPECT_THAT(machine.trash.trashed(), IsEmpty());
    EXPECT_THAT(machine.files.pathsOf("remove"), UnorderedElementsAre(yarn, cursor));
    EXPECT_EQ(textOf(window(), "cleanupResult"), "59 MB · 3 items");
    press(Qt::Key_Return);
    untilClosed();
    untilSurveyed(2);
}

TEST_F(Reclaiming, cancelAndEscapeRemoveNothing) {
    surveyByMouse();
    click("reviewButton");
    untilReviewed();
    click("permanentSwitch");
    click("cancelCleanup");
    untilClosed();
    expectNothingHappened();
    EXPECT_EQ(chosen(), safeCategories);
    click("reviewButton");
    untilReviewed();
    EXPECT_EQ(textOf(window(), "confirmCleanup"), "Move 59 MB to Trash") << "each review defaults to the Trash";
    press(Qt::Key_Escape);
    untilClosed();
    expectNothingHappened();
    EXPECT_EQ(focusName(), QStringLiteral("reviewButton"));
}

TEST_F(Reclaiming, failedItemsAreListedAsSkipped) {
    surveyByMouse();
    machine.processes.outcome = [](const auto&) { return ChildOutcome{std::nullopt, 127, "env: npm: not found"}; };
    machine.files.failing = [this](const auto& call) { return call.operation == "trash" && call.path == yarn; };
    click("reviewButton");
    untilReviewed();
    click("confirmCleanup");
    untilDone();
    EXPECT_EQ(textOf(window(), "cleanupResult"), "4 MB · 1 item · 2 skipped");
    EXPECT_EQ(control(window(), "skippedList"), nullptr);
    EXPECT_EQ(textOf(window(), "showSkipped"), "Show what was skipped");
    click("showSkipped");
    ASSERT_NE(control(window(), "skippedList"), nullptr);
    EXPECT_EQ(control(window(), "skippedList")->property("count").toInt(), 2);
    EXPECT_EQ(textOf(window(), "showSkipped"), "Hide what was skipped");
    click("showSkipped");
    EXPECT_EQ(control(window(), "skippedList"), nullptr);
    click("keepInTrash");
    untilSurveyed(2);
}

TEST_F(Reclaiming, sheetCannotBeClosedWhileCleaning) {
    surveyByMouse();
    click("reviewButton");
    untilReviewed();
    machine.tasks.hold();
    click("confirmCleanup");
    EXPECT_EQ(textOf(window(), "confirmCleanup"), "Cleaning…");
    for (const char* name : {"confirmCleanup", "cancelCleanup", "permanentSwitch"})
        EXPECT_FALSE(control(window(), name)->isEnabled()) << name;
    press(Qt::Key_Escape);
    click("cancelCleanup");
    click("confirmCleanup");
    EXPECT_NE(control(window(), "dryRunList"), nullptr);
    machine.tasks.release();
    untilDone();
    EXPECT_EQ(machine.trash.trashed().size(), 2U) << "both, and once each";
    press(Qt::Key_Escape);
    untilClosed();
    untilSurveyed(2);
}

TEST_F(Reclaiming, entersWithFocusInTheList) {
    surveyByMouse();
    EXPECT_TRUE(find("categoryList")->hasActiveFocus());
    EXPECT_FALSE(find("categoryList")->property("ringed").toBool()) << "the mouse needs no ring";
    press(Qt::Key_1, Qt::ControlModifier);
    press(Qt::Key_2, Qt::ControlModifier);
    EXPECT_TRUE(find("categoryList")->hasActiveFocus());
    EXPECT_TRUE(find("categoryList")->property("ringed").toBool());
}

TEST_F(Reclaiming, cleansCategoriesWithKeyboardAlone) {
    surveyByKeys();
    tabTo(window(), "categoryList");
    arrowTo(window(), 2);
    EXPECT_THAT(spokenFocus(window(), "categoryList"), ElementsAre(cells("categoryList", "spoken")[2]));
    press(Qt::Key_Space);
    EXPECT_THAT(chosen(), ElementsAre("yarn_cache", "node_modules", "npm_cache", "electron_cache"));
    tabTo(window(), "categoryMap");
    press(Qt::Key_Home);
    press(Qt::Key_Return);
    EXPECT_THAT(chosen(), ElementsAre("node_modules", "npm_cache", "electron_cache"));
    press(Qt::Key_Space);
    EXPECT_EQ(chosen().size(), 4U);

    tabTo(window(), "selectMenu");
    press(Qt::Key_Space);
    runUntil([&] { return menuEntry(window(), "None") != nullptr; });
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    runUntil([&] { return menuEntry(window(), "None") == nullptr; });
    EXPECT_EQ(chosen(), safeCategories);
    EXPECT_EQ(focusName(), QStringLiteral("selectMenu"));

    tabTo(window(), "reviewButton");
    press(Qt::Key_Space);
    untilReviewed();
    EXPECT_EQ(focusName(), QStringLiteral("confirmCleanup"));
    press(Qt::Key_Escape);
    untilClosed();
    expectNothingHappened();
    press(Qt::Key_Return);
    untilReviewed();
    tabTo(window(), "permanentSwitch");
    press(Qt::Key_Space);
    EXPECT_EQ(textOf(window(), "confirmCleanup"), "Delete 59 MB permanently");
    tabTo(window(), "dryRunList");
    press(Qt::Key_End);
    press(Qt::Key_Return);
    EXPECT_NE(control(window(), "confirmCleanup"), nullptr) << "only its own button starts a permanent deletion";
    expectNothingHappened();
    tabTo(window(), "permanentSwitch");
    press(Qt::Key_Space);
    tabTo(window(), "dryRunList");
    press(Qt::Key_Return);
    untilDone();
    EXPECT_THAT(machine.trash.trashed(), UnorderedElementsAre(yarn, cursor));
    EXPECT_EQ(focusName(), QStringLiteral("keepInTrash"));
    tabTo(window(), "emptyTrash");
    press(Qt::Key_Return);
    runUntil([&] { return control(window(), "cleanupDone") != nullptr; });
    EXPECT_EQ(focusName(), QStringLiteral("cleanupDone"));
    press(Qt::Key_Return);
    untilClosed();
    untilSurveyed(2);
    EXPECT_THAT(machine.trash.list(), testing::Optional(IsEmpty()));
}

TEST_F(Reclaiming, reachesBubblesWithArrowKeys) {
    surveyByKeys();
    tabTo(window(), "categoryMap");
    for (const char* category : {"ios_backups", "electron_cache", "node_modules", "npm_cache", "yarn_cache"}) {
        const bool before = std::count(safeCategories.begin(), safeCategories.end(), category) > 0;
        arrowToBubble(window(), "categoryMap", category);
        press(Qt::Key_Space);
        EXPECT_EQ(testing::Value(chosen(), testing::Contains(category)), !before) << category;
    }
    EXPECT_THAT(chosen(), ElementsAre("ios_backups", "node_modules"));
}

TEST_F(Reclaiming, statusItemCleansSafeItemsEvenIfInUse) {
    surveyByMouse();
    const auto isClean = [](const QAction* entry) {
        return entry->text() == QStringLiteral("Clean safe caches (59 MB)");
    };
    QList<QAction*> entries;
    runUntil([&] {
        entries = shell().statusItem().menu().actions();
        return std::any_of(entries.begin(), entries.end(), isClean);
    });
    (*std::find_if(entries.begin(), entries.end(), isClean))->trigger();
    untilSurveyed(2);
    EXPECT_THAT(machine.trash.trashed(), UnorderedElementsAre(yarn, cursor));
    EXPECT_EQ(machine.processes.calls().size(), 1U);
    EXPECT_EQ(control(window(), "dryRunList"), nullptr) << "without a review";
}

}  // namespace zelk
