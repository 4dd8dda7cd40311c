// SPDX-License-Identifier: MIT
// Cleans single items in the developer view, with the mouse and with the keyboard alone.
#include <gmock/gmock.h>

#include "ReclaimingFixture.h"

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

class ReclaimingItems : public ReclaimingFixture {
protected:
    /// The last sentence of the popup that explains the grades.
    const QString closing =
        QStringLiteral("Everything moves to the Trash, so any removal is reversible until you empty it.");
};

}  // namespace

TEST_F(ReclaimingItems, skipsItemsInUse) {
    surveyByMouse();
    click("developerSwitch");
    EXPECT_TRUE(shows(QStringLiteral("14 days")));
    EXPECT_TRUE(shows(QStringLiteral("5 of 6 shown")));
    EXPECT_TRUE(shows(QStringLiteral("3 items selected")))
        << "all but the backup and the items that are recent or in use";

    const int group = itemRow("App caches (Electron)");
    clickText("App caches (Electron)");
    EXPECT_EQ(item(group + 1, "name"), "Cache");
    EXPECT_EQ(item(group + 1, "line"), "quit Cursor to clear");
    EXPECT_EQ(item(group + 1, "chosen"), "false");
    EXPECT_TRUE(shows(QStringLiteral("quit Cursor to clear")));
    clickText("quit Cursor to clear");
    clickText("Cache");
    EXPECT_EQ(item(group + 1, "chosen"), "false") << "it cannot be selected";
    EXPECT_TRUE(shows(QStringLiteral("3 items selected")));

    clickText("iOS device backups");
    clickText("Backup");
    EXPECT_TRUE(shows(QStringLiteral("4 items selected")));
    clickText("Backup");
    click("reviewButton");
    untilReviewed();
    EXPECT_THAT(reviewed(), UnorderedElementsAre(yarn, modules, npm));
    click("confirmCleanup");
    untilDone();
    EXPECT_THAT(machine.trash.trashed(), UnorderedElementsAre(yarn, modules));
    click("keepInTrash");
    untilSurveyed(2);
}

TEST_F(ReclaimingItems, selectsItemsWithMouse) {
    surveyByMouse();
    click("developerSwitch");
    click("safetyInfo");
    runUntil([&] { return shows(closing); });
    click("safetyInfo");
    runUntil([&] { return !shows(closing); });

    QQuickItem* slider = control(window(), "ageSlider");
    tour::clickAt(window(), slider->mapToScene({1, slider->height() / 2}));
    EXPECT_TRUE(shows(QStringLiteral("all")));
    EXPECT_TRUE(shows(QStringLiteral("6 of 6 shown")));

    clickMiddle(window(), boxOf(window(), "node_modules"));
    EXPECT_EQ(item(itemRow("node_modules"), "chosen"), "false");
    EXPECT_EQ(item(itemRow("node_modules"), "open"), "false") << "the check box does not expand the group";
    clickMiddle(window(), boxOf(window(), "node_modules"));
    EXPECT_EQ(item(itemRow("node_modules"), "chosen"), "true");
    clickText("iOS device backups");
    clickMiddle(window(), boxOf(window(), "Backup"));
    EXPECT_EQ(item(itemRow("Backup"), "chosen"), "true");
    clickMiddle(window(), boxOf(window(), "Backup"));
    EXPECT_EQ(item(itemRow("Backup"), "chosen"), "false");
    expectNothingHappened();
}

TEST_F(ReclaimingItems, spokenTextStartsWithName) {
    surveyByMouse();
    click("developerSwitch");
    clickText("Yarn cache");
    const std::string spoken = item(itemRow("Yarn cache") + 1, "spoken");
    EXPECT_THAT(spoken, testing::StartsWith("Yarn"));
    EXPECT_THAT(spoken, testing::HasSubstr("50 MB"));
}

TEST_F(ReclaimingItems, entersWithFocusInTheList) {
    surveyByMouse();
    click("developerSwitch");
    press(Qt::Key_1, Qt::ControlModifier);
    press(Qt::Key_2, Qt::ControlModifier);
    EXPECT_TRUE(find("itemList")->hasActiveFocus());
}

TEST_F(ReclaimingItems, cleansItemsWithKeyboardAlone) {
    surveyByKeys();
    tabTo(window(), "developerSwitch");
    press(Qt::Key_Space);
    EXPECT_FALSE(shows(closing));
    tabTo(window(), "safetyInfo");
    press(Qt::Key_Space);
    runUntil([&] { return shows(closing); });
    press(Qt::Key_Escape);
    runUntil([&] { return !shows(closing); });
    EXPECT_EQ(focusName(), QStringLiteral("safetyInfo"));

    tabTo(window(), "ageSlider");
    press(Qt::Key_Right);
    EXPECT_TRUE(shows(QStringLiteral("15 days")));
    for (int day = 15; day > 0; --day) press(Qt::Key_Left);
    EXPECT_TRUE(shows(QStringLiteral("all")));
    EXPECT_TRUE(shows(QStringLiteral("6 of 6 shown")));
    EXPECT_TRUE(shows(QStringLiteral("4 items selected")));
    for (int day = 0; day < 4; ++day) press(Qt::Key_Right);
    EXPECT_TRUE(shows(QStringLiteral("4 days")));
    EXPECT_TRUE(shows(QStringLiteral("3 items selected")));
    for (int day = 4; day > 0; --day) press(Qt::Key_Left);

    tabTo(window(), "itemList");
    const int group = itemRow("node_modules");
    arrowTo(window(), group);
    EXPECT_THAT(spokenFocus(window(), "itemList"), ElementsAre(item(group, "spoken")));
    press(Qt::Key_Right);
    EXPECT_EQ(item(group, "open"), "true");
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Space);
    EXPECT_THAT(ticked("itemList", "place"), testing::Not(testing::Contains(home + "/young")));
    EXPECT_EQ(item(group, "chosen"), "false") << "not all of the group";
    press(Qt::Key_Left);
    EXPECT_EQ(item(group, "open"), "false");
    press(Qt::Key_Space);
    EXPECT_EQ(item(group, "chosen"), "true");
    press(Qt::Key_Space);
    EXPECT_EQ(item(group, "chosen"), "false");
    press(Qt::Key_Return);
    EXPECT_EQ(item(group, "open"), "true");
    press(Qt::Key_Down);
    press(Qt::Key_Space);

    tabTo(window(), "reviewButton");
    press(Qt::Key_Return);
    untilReviewed();
    EXPECT_THAT(reviewed(), UnorderedElementsAre(yarn, modules, npm));
    press(Qt::Key_Return);
    untilDone();
    EXPECT_THAT(machine.trash.trashed(), UnorderedElementsAre(yarn, modules));
    press(Qt::Key_Space);
    untilClosed();
    untilSurveyed(2);
}

}  // namespace zelk
