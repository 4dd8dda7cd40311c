// SPDX-License-Identifier: MIT
#include "TextsOf.h"
#include "ViewFixture.h"
#include "ui/screens/tools/ToolsScreenModel.h"
#include "ui/theme/ScreenLook.h"

namespace zelk {

namespace {

class ToolsWindow : public ViewFixture {
protected:
    ~ToolsWindow() override { close(); }

    void open(QSize size = {800, 620}) {
        show(QStringLiteral("Zelk.App"), QStringLiteral("ToolsView"), "tools", &tools_, size);
    }

    static constexpr const char* first =
        "Overview. Scan your whole Mac and see space by type, the biggest files, and "
        "how it changes over time.";

private:
    const TextsOf texts_{macOS};
    ToolsScreenModel tools_{model()};
};

}  // namespace

TEST_F(ToolsWindow, showsItsTextsInOrder) {
    open({800, 1400});
    EXPECT_EQ(
        seenTexts(),
        (std::vector<std::string>{
            "Tools", "everything Zelk can do",
            // Each tool with its description and, if it removes anything, what happens to that.
            "Overview", "Scan your whole Mac and see space by type, the biggest files, and how it changes over time.",
            "Reclaim", "Find caches, logs, and developer junk, grouped by safety.", "clear it to the Trash", "Lens",
            "Explore where space went as bubbles, a drill-down list, or a treemap.", "delete folders you don't need",
            "Clutter", "Surface your largest and oldest files, filterable by type.", "move them to the Trash",
            "Duplicates", "Find byte-identical files across your folders.", "keep one copy, trash the rest", "Health",
            "Live disk, memory, CPU, and battery gauges.", "Apps",
            "See apps by true footprint and uninstall them with all their leftovers.", "Privacy",
            "Clear browsing traces — caches, histories, cookies — across your browsers.", "Tune",
            "Free up memory, flush the DNS cache, and manage startup items.", "System",
            "Local snapshots, purgeable space, and disk-image / VM bloat."}));
    ASSERT_NE(symbol("list.star"), nullptr);
    EXPECT_EQ(symbol("list.star")->color(), QColor(154, 160, 255));
}

TEST_F(ToolsWindow, rowsHaveLeftLineAndGreatestWidthOfAllScreens) {
    open({1900, 1400});
    const QQuickItem* row = window().activeFocusItem();
    ASSERT_EQ(nameOf(window().activeFocusItem()), first);
    EXPECT_EQ(row->mapToScene({}).x(), 26);
    EXPECT_EQ(row->width(), 1100);
    open({800, 620});
    EXPECT_EQ(window().activeFocusItem()->width(), 800 - 2 * 26);
}

TEST_F(ToolsWindow, rowShowsTileAndThreeTexts) {
    open({800, 1400});
    EXPECT_EQ(sizeOf("Duplicates"), 17);
    EXPECT_EQ(sizeOf("Find byte-identical files across your folders."), 14);
    EXPECT_EQ(sizeOf("keep one copy, trash the rest"), 12);
    const Theme& theme = singleton<Theme>("Theme");
    EXPECT_EQ(showing("Find byte-identical files across your folders.")->property("color").value<QColor>(),
              theme.inkSoft());
    const SymbolItem* copies = symbol("doc.on.doc");
    ASSERT_NE(copies, nullptr);
    const QColor tint = lookOf(Screen::duplicates).color;
    EXPECT_EQ(copies->color(), tint);
    EXPECT_EQ(copies->parentItem()->size(), QSizeF(40, 40));
    QColor soft = tint;
    soft.setAlphaF(0.16F);
    EXPECT_EQ(copies->parentItem()->property("color").value<QColor>(), soft);
}

TEST_F(ToolsWindow, tabVisitsAllRows) {
    open();
    EXPECT_EQ(focusName(), first);
    const std::vector<std::string> order = tabOrder();
    ASSERT_EQ(order.size(), 10U);
    EXPECT_EQ(order[2].rfind("Lens. ", 0), 0U) << order[2];
    EXPECT_EQ(order[9].rfind("System. ", 0), 0U) << order[9];
}

TEST_F(ToolsWindow, scrollsToFocusedRow) {
    open();
    for (int row = 0; row < 10; ++row) {
        expectFocusInSight();
        press(Qt::Key_Tab);
    }
    expectFocusInSight();
}

TEST_F(ToolsWindow, keyboardPressesRow) {
    open();
    model().setSelection(Screen::tools);
    press(Qt::Key_Tab);
    EXPECT_TRUE(focusIsRinged());
    press(Qt::Key_Return);
    EXPECT_EQ(model().selection(), Screen::reclaim);
    press(Qt::Key_Tab);
    press(Qt::Key_Space);
    EXPECT_EQ(model().selection(), Screen::lens);
}

TEST_F(ToolsWindow, wholeRowIsClickable) {
    open({800, 1400});
    for (QQuickItem* item : seen()) {
        if (!item->inherits("QQuickText") || item->property("text").toString() != QStringLiteral("Health")) continue;
        const QPointF title = item->mapToScene(item->boundingRect().center());
        tour::clickAt(window(), QPointF(window().width() - 60, title.y() + 20));
    }
    EXPECT_EQ(model().selection(), Screen::health);
}

TEST_F(ToolsWindow, namesEveryRow) {
    open({800, 1400});
    expectAllControlsNamed();
}

TEST_F(ToolsWindow, clipsNothingInLargeText) {
    singleton<TextScale>("TextScale").setFactor(1.5);
    open({726, 620});
    expectNoTextClipped();
}

}  // namespace zelk
