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
    expectTexts({"Select:", "Review & Clean", "node_modules", "Yarn cache", "regenerates"});
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
    EXPECT_EQ(find("ageSlider")->property("to").toInt(), 180);
    EXPECT_EQ(colorsOf("chevron.right").size(), 5U);
    for (QQuickItem* item : seen()) {
        if (!item->property("spoken").isValid()) continue;
        EXPECT_TRUE(namesInside(item).empty()) << nameOf(item) << " has said everything";
    }
    screen().items()->setOpen(0, true);
    settle();
    EXPECT_EQ(colorsOf("chevron.right").size(), 4U);
    EXPECT_EQ(colorsOf("chevron.down").size(), 1U);
    screen().items()->setAgeDays(180);
    settle();
    expectTexts(
        {"Nothing that old", "Everything found was in use more recently. Move the slider to the left to see it."});
}

TEST_F(ReclaimWindow, explainsThreeGrades) {
    fillJunk();
    openFor(AppModel::Audience::developer);
    EXPECT_EQ(nameOf(find("safetyInfo")), "What's safe to remove?");
    click("safetyInfo");
    const std::vector<std::string> parts{
        "What's safe to remove?",
        "safe",
        "Pure caches and logs. Zero risk — the app simply rebuilds them as needed.",
        "regenerates",
        "Build output like node_modules and build caches. Safe to delete; recreated automatically on your next build "
        "or install (the first one is slower).",
        "review",
        "May include things you chose to keep — device backups, virtual environments, saved state. Review before "
        "removing; left unchecked by default.",
        "Everything moves to the Trash, so any removal is reversible until you empty it.",
    };
    const std::vector<QQuickItem*> items = seen();
    const auto guide = std::find_if(items.begin(), items.end(), [](QQuickItem* item) {
        QAccessibleInterface* node = QAccessible::queryAccessibleInterface(item);
        return node != nullptr && node->role() == QAccessible::Note;
    });
    ASSERT_NE(guide, items.end());
    std::string spoken;
    for (const std::string& part : parts) spoken += (spoken.empty() ? "" : ", ") + part;
    EXPECT_EQ(nameOf(*guide), spoken);
    std::vector<std::string> texts;
    std::vector<QColor> inks;
    for (QQuickItem* item : items) {
        if (!(*guide)->isAncestorOf(item)) continue;
        if (item->inherits("QQuickText")) texts.push_back(item->property("text").toString().toStdString());
        if (item->property("ink").isValid()) inks.push_back(item->property("ink").value<QColor>());
    }
    EXPECT_EQ(texts, parts);
    EXPECT_EQ(inks, (std::vector<QColor>{{50, 199, 123}, {245, 166, 35}, {255, 107, 94}}));
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
    expectTexts({"Moved to the Trash",
                 "Items were moved to the Trash, so they're recoverable — but your free space won't change until the "
                 "Trash is emptied.",
                 "Keep in Trash", "Empty Trash & free space"});
    ASSERT_NE(symbol("checkmark.circle.fill"), nullptr);
    EXPECT_EQ(symbol("checkmark.circle.fill")->property("color").value<QColor>(), QColor(50, 199, 123));
    machine.tasks.hold();
    click("emptyTrash");
    expectTexts({"Moved to the Trash", "Emptying…"});
    machine.tasks.release();
    runUntil([&] { return screen().dryRun()->trashEmptied(); });
    settle();
    expectTexts({"Space reclaimed", "The Trash was emptied. Your free space is now updated.", "Done"});
}

}  // namespace zelk
