// SPDX-License-Identifier: MIT
// Every screen where the application reads from right to left: all of it is the mirror image of what it is from left to
// right, nothing is cut off, and the arrow keys lead where they point.
#include <gmock/gmock.h>

#include "MirrorCheck.h"
#include "ReclaimHands.h"
#include "ScreenFaults.h"
#include "ShellFixture.h"
#include "fakes/RightToLeft.h"
#include "ui/screens/reclaim/ReclaimScreenModel.h"
#include "ui/theme/ScreenLook.h"

namespace zelk {

namespace {

class MirroredWalk : public ShellFixture {
protected:
    MirroredWalk() { machine.trash.put("old.zip", 7'000'000); }

    void expectMirrored(QQuickWindow& where, const std::string& state) {
        where.grabWindow();  // applies pending layout
        runWhatIsThere();
        tour::MirrorCheck check;
        check.look(where, QString::fromStdString(state));
        std::vector<std::string> faults;
        for (const QString& line : check.findings()) faults.push_back(line.toStdString());
        EXPECT_THAT(faults, testing::IsEmpty());
        EXPECT_GT(check.compared(), 5) << state;
        EXPECT_THAT(layoutFaults(where), testing::IsEmpty()) << state;
    }
    void expectMirrored(const std::string& state) { expectMirrored(window(), state); }

    QRectF box(const char* name) {
        window().grabWindow();
        const QQuickItem* item = find(name);
        return item == nullptr ? QRectF() : item->mapRectToScene(item->boundingRect());
    }

    const fakes::RightToLeft direction;
};

}  // namespace

TEST_F(MirroredWalk, everyScreenIsMirrored) {
    shell();
    survey();
    for (const QSize size : {QSize(960, 620), QSize(1600, 1000)}) {
        window().resize(size);
        runUntil([&] { return window().contentItem()->size() == QSizeF(size); });
        for (const auto audience : {AppModel::Audience::normal, AppModel::Audience::developer}) {
            model().setAudience(audience);
            for (const Screen screen : allScreens) {
                model().setSelection(screen);
                expectMirrored(lookOf(screen).title.toStdString() + ", " + std::to_string(size.width()) + " wide");
            }
        }
    }
}

TEST_F(MirroredWalk, everyStartPageIsMirrored) {
    shell();
    for (const Screen screen : allScreens) {
        model().setSelection(screen);
        expectMirrored(lookOf(screen).title.toStdString() + " before a survey");
    }
}

TEST_F(MirroredWalk, sidebarIsAtTheRight) {
    shell();
    EXPECT_EQ(box("sidebar").right(), window().width());
    main().sidebar().toggleCollapsed();
    expectMirrored("a collapsed sidebar");
    EXPECT_EQ(box("sidebar").right(), window().width());
}

TEST_F(MirroredWalk, otherWindowsAreMirrored) {
    shell();
    for (const WindowId id : {WindowId::about, WindowId::help, WindowId::settings}) {
        QQuickWindow& other = main().openWindow(id);
        runUntil([&] { return other.isExposed(); });
        expectMirrored(other, other.title().toStdString());
    }
}

TEST_F(MirroredWalk, welcomeTurnsItsPagesToTheRight) {
    fakes::FakePreferences preferences;
    services.preferences = &preferences;
    services.workspace = &machine.workspace;
    services.accessGranted = [] { return false; };
    shell();
    runUntil([&] { return find("primaryButton") != nullptr; });
    const auto left = [&] {
        window().grabWindow();
        return find("welcomePages")->x();
    };
    const double first = left();
    expectMirrored("the first page");
    press(Qt::Key_Left);
    EXPECT_GT(left(), first) << "the next page comes from the left";
    expectMirrored("the second page");
    press(Qt::Key_Right);
    EXPECT_EQ(left(), first);
    for (int page = 0; page < 3; ++page) press(Qt::Key_Left);
    EXPECT_DOUBLE_EQ(left(), 0) << "the last page is at the left";
    expectMirrored("the last page");
    press(Qt::Key_Return);
    runUntil([&] { return find("continueButton") != nullptr; });
    expectMirrored("the panel that asks for access");
}

TEST_F(MirroredWalk, leftGoesIntoFoldersAndRightComesBack) {
    shell();
    survey();
    click("sidebarLens");
    window().grabWindow();
    find("lensList")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Home);
    press(Qt::Key_Left);
    EXPECT_TRUE(find("lensBack")->isEnabled()) << "inside";
    expectMirrored("inside the first folder");
    press(Qt::Key_Right);
    EXPECT_FALSE(find("lensBack")->isEnabled());
}

TEST_F(MirroredWalk, leftOpensGroupsAndRightClosesThem) {
    model().setAudience(AppModel::Audience::developer);
    shell();
    survey();
    click("sidebarReclaim");
    window().grabWindow();
    ItemList& items = *main().reclaim().items();
    const int closed = items.rowCount();
    ASSERT_GT(closed, 0);
    find("itemList")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Home);
    press(Qt::Key_Left);
    EXPECT_GT(items.rowCount(), closed);
    expectMirrored("an open group");
    press(Qt::Key_Right);
    EXPECT_EQ(items.rowCount(), closed);
    click("safetyInfo");
    expectMirrored("the safety guide");
}

TEST_F(MirroredWalk, menusOpenTowardsTheLeft) {
    shell();
    survey();
    click("menuTitleGo");
    window().grabWindow();
    ASSERT_NE(find("menuOverview"), nullptr);
    EXPECT_NEAR(box("menuOverview").right() + 5, box("menuTitleGo").right(), 1);
    expectMirrored("a menu of the strip");
    press(Qt::Key_Left);
    window().grabWindow();
    EXPECT_EQ(find("menuOverview"), nullptr) << "the next menu is at the left";
    press(Qt::Key_Escape);

    click("sidebarClutter");
    window().grabWindow();
    find("clutterList")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Home);
    press(Qt::Key_Return);
    window().grabWindow();
    ASSERT_NE(find("trashFile"), nullptr);
    EXPECT_LT(box("fileMenu0").right(), box("trashFile").width()) << "left of the button there is no room for it";
    EXPECT_NEAR(box("trashFile").left() - 5, 8, 1) << "as near as the margin lets it";
    expectMirrored("the menu of a file");
}

TEST_F(MirroredWalk, sheetsAreMirrored) {
    shell();
    survey();
    click("sidebarReclaim");
    click("reviewButton");
    runUntil([&] { return find("confirmCleanup") != nullptr && find("confirmCleanup")->isEnabled(); });
    expectMirrored("the review");
    EXPECT_LT(box("confirmCleanup").right(), box("cancelCleanup").left()) << "the main button is the last";
    click("confirmCleanup");
    runUntil([&] { return find("cleanupResult") != nullptr; });
    expectMirrored("the result");
}

TEST_F(MirroredWalk, healthIsMirroredWithItsPopover) {
    shell();
    click("sidebarHealth");
    click("scoreInfo");
    runWhatIsThere();
    expectMirrored("the score explained");
}

}  // namespace zelk
