// SPDX-License-Identifier: MIT
// The rendered texts of the screen for both audiences, and of the review sheet before and after a clean-up.
#include "ReclaimFixture.h"
#include "ViewFixture.h"

namespace zelk {

namespace {

class ReclaimWindow : public ReclaimFixtureOn<ViewFixture> {
protected:
    ~ReclaimWindow() override { close(); }

    void openFor(AppModel::Audience audience) {
        surveyFor(audience);
        show(QStringLiteral("Zelk.App"), QStringLiteral("DevCleanupView"), "reclaim", &screen(), {1046, 800});
    }
};

}  // namespace

TEST_F(ReclaimWindow, introducesItselfBeforeSurvey) {
    show(QStringLiteral("Zelk.App"), QStringLiteral("DevCleanupView"), "reclaim", &screen(), {1046, 800});
    expectTexts({"Reclaim", "Clear caches, logs, and developer junk — safely, to the Trash.", "Scan for junk"});
}

TEST_F(ReclaimWindow, reportsCleanDrive) {
    openFor(AppModel::Audience::normal);
    expectTexts({"Clean drive", "Nothing to reclaim right now."});
}

TEST_F(ReclaimWindow, offersCategories) {
    fillJunk();
    openFor(AppModel::Audience::normal);
    expectTexts({"Select:", "Review & Clean", "node_modules", "Yarn cache"});
    EXPECT_EQ(nameOf(find("categoryList")), "Categories");
    EXPECT_EQ(nameOf(find("categoryMap")), "Map of the categories");
    click("selectMenu");
    for (const char* entry : {"All", "Safe only", "None"}) {
        const auto items = seen();
        EXPECT_TRUE(std::any_of(items.begin(), items.end(), [&](QQuickItem* item) {
            return item->property("text").toString() == QLatin1String(entry);
        })) << entry;
    }
}

TEST_F(ReclaimWindow, offersItems) {
    fillJunk();
    openFor(AppModel::Audience::developer);
    expectTexts({"only inactive >", "14 days", "Clean selected"});
    EXPECT_EQ(nameOf(find("itemList")), "Items");
    EXPECT_EQ(nameOf(find("ageSlider")), "only inactive >");
    screen().items()->setAgeDays(180);
    settle();
    expectTexts(
        {"Nothing that old", "Everything found was in use more recently. Move the slider to the left to see it."});
}

TEST_F(ReclaimWindow, reviewsAndReportsCleanup) {
    fillJunk();
    openFor(AppModel::Audience::normal);
    click("reviewButton");
    expectTexts({"Review cleanup", "Delete permanently instead of moving to Trash — irreversible", "Cancel"});
    EXPECT_EQ(nameOf(find("dryRunList")), "What will go");
    EXPECT_EQ(nameOf(find("permanentSwitch")), "Delete permanently instead of moving to Trash — irreversible");
    click("confirmCleanup");
    runUntil([&] { return screen().dryRun()->isDone(); });
    settle();
    expectTexts({"Moved to the Trash", "Keep in Trash", "Empty Trash & free space"});
    click("emptyTrash");
    runUntil([&] { return screen().dryRun()->trashEmptied(); });
    settle();
    expectTexts({"Space reclaimed", "Done"});
}

}  // namespace zelk
