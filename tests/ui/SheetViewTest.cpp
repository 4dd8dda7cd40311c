// SPDX-License-Identifier: MIT
// A modal sheet over a window: its keys, its focus and its accessibility.
#include "ControlsFixture.h"

namespace zelk {

namespace {

using Names = std::vector<std::string>;

class SheetWindow : public ControlsFixture {};

}  // namespace

TEST_F(SheetWindow, isDialogNamedByItsTitle) {
    openSheet();
    QQuickItem* inside = sheet()->property("contentItem").value<QQuickItem*>();
    EXPECT_EQ(QAccessible::queryAccessibleInterface(inside)->role(), QAccessible::Dialog);
    EXPECT_EQ(nameOf(inside), "Move to Trash");
}

TEST_F(SheetWindow, isOneModalNodeThatContainsItsControls) {
    openSheet();
    QAccessibleInterface* root = QAccessible::queryAccessibleInterface(&window());
    std::vector<QAccessibleInterface*> dialogs;
    std::vector<QAccessibleInterface*> pending{root};
    while (!pending.empty()) {
        QAccessibleInterface* node = pending.back();
        pending.pop_back();
        if (node->role() == QAccessible::Dialog) dialogs.push_back(node);
        for (int child = 0; child < node->childCount(); ++child) pending.push_back(node->child(child));
    }
    ASSERT_EQ(dialogs.size(), 1U);
    QAccessibleInterface* dialog = dialogs.front();
    EXPECT_TRUE(dialog->state().modal);
    EXPECT_FALSE(dialog->state().invisible);
    EXPECT_EQ(dialog->parent(), root);
    Names held;
    for (int child = 0; child < dialog->childCount(); ++child) {
        held.push_back(dialog->child(child)->text(QAccessible::Name).toStdString());
        EXPECT_EQ(dialog->child(child)->parent(), dialog) << held.back();
        EXPECT_EQ(dialog->indexOfChild(dialog->child(child)), child);
    }
    EXPECT_EQ(held, (Names{"Cancel", "Move"}));
    EXPECT_EQ(dialog->child(2), nullptr);
    EXPECT_TRUE(dialog->rect().contains(dialog->child(1)->rect()));
}

TEST_F(SheetWindow, escapeEmitsDismissed) {
    openSheet();
    press(Qt::Key_Escape);
    EXPECT_EQ(told(), "dismissed");
    EXPECT_TRUE(sheet()->property("opened").toBool()) << "its owner decides when it closes";
    give("cancel");
    press(Qt::Key_Escape);
    EXPECT_EQ(told(), "dismissed");
}

TEST_F(SheetWindow, escapeIsIgnoredIfNotClosable) {
    sheet()->setProperty("closable", false);
    openSheet();
    press(Qt::Key_Escape);
    EXPECT_EQ(told(), "");
}

TEST_F(SheetWindow, returnPressesPrimaryButton) {
    openSheet();
    press(Qt::Key_Return);
    EXPECT_EQ(told(), "go");
    press(Qt::Key_Enter);
    EXPECT_EQ(told(), "go");
    hold(Qt::Key_Return);
    EXPECT_EQ(told(), "go");
    view().setProperty("able", false);
    press(Qt::Key_Return);
    EXPECT_EQ(told(), "") << "it is disabled";
}

TEST_F(SheetWindow, returnPressesFocusedButton) {
    openSheet();
    give("cancel");
    press(Qt::Key_Return);
    EXPECT_EQ(told(), "cancel");
    press(Qt::Key_Space);
    EXPECT_EQ(told(), "cancel");
}

TEST_F(SheetWindow, focusStaysInside) {
    openSheet();
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        Names reached;
        for (int stop = 0; stop < 8; ++stop) {
            press(key);
            reached.push_back(focusName());
            EXPECT_TRUE(focusName() == "Cancel" || focusName() == "Move" || focusName() == "Move to Trash")
                << focusName();
        }
        for (const char* name : {"Cancel", "Move"}) EXPECT_GT(std::count(reached.begin(), reached.end(), name), 0);
    }
}

TEST_F(SheetWindow, clicksOutsideAreBlocked) {
    openSheet();
    click("primary");
    EXPECT_EQ(told(), "");
    EXPECT_TRUE(sheet()->property("opened").toBool());
    click("go");
    EXPECT_EQ(told(), "go");
}

TEST_F(SheetWindow, restoresFocusOnClose) {
    give("link");
    openSheet();
    EXPECT_NE(focusName(), "Show all");
    QMetaObject::invokeMethod(sheet(), "close");
    settle();
    EXPECT_EQ(focusName(), "Show all");
    EXPECT_EQ(rings(), 1);

    click("secondary");
    openSheet();
    QMetaObject::invokeMethod(sheet(), "close");
    settle();
    EXPECT_EQ(focusName(), "Later");
    EXPECT_EQ(rings(), 0) << "it was focused by the mouse";
}

}  // namespace zelk
