// SPDX-License-Identifier: MIT
#include "ui/screens/tools/ToolsScreenModel.h"

#include <string>
#include <vector>

#include "state/AppModelFixture.h"

namespace zelk {

namespace {

class ToolsScreen : public AppModelFixture {
protected:
    ToolsScreenModel& tools() {
        if (!tools_) tools_ = std::make_unique<ToolsScreenModel>(model());
        return *tools_;
    }
    QVariant at(int row, const char* role) { return tools().data(tools().index(row), tools().roleNames().key(role)); }
    std::string text(int row, const char* role) { return at(row, role).toString().toStdString(); }

private:
    std::unique_ptr<ToolsScreenModel> tools_;
};

struct ToolRow {
    Screen screen;
    std::string title;
    std::string symbol;
    QColor tint;
    std::string detail;
    std::string cleanup;
};

const std::vector<ToolRow>& toolRows() {
    static const std::vector<ToolRow> all{
        {Screen::survey,
         "Overview",
         "scope",
         {245, 166, 35},
         "Scan your whole Mac and see space by type, the biggest files, and how it changes over time.",
         ""},
        {Screen::reclaim,
         "Reclaim",
         "sparkles",
         {50, 199, 123},
         "Find caches, logs, and developer junk, grouped by safety.",
         "clear it to the Trash"},
        {Screen::lens,
         "Lens",
         "circle.hexagongrid",
         {232, 91, 196},
         "Explore where space went as bubbles, a drill-down list, or a treemap.",
         "delete folders you don't need"},
        {Screen::clutter,
         "Clutter",
         "tray.full",
         {34, 195, 201},
         "Surface your largest and oldest files, filterable by type.",
         "move them to the Trash"},
        {Screen::duplicates,
         "Duplicates",
         "doc.on.doc",
         {21, 170, 191},
         "Find byte-identical files across your folders.",
         "keep one copy, trash the rest"},
        {Screen::health,
         "Health",
         "heart.text.square",
         {47, 211, 165},
         "Live disk, memory, CPU, and battery gauges.",
         ""},
        {Screen::apps,
         "Apps",
         "square.grid.2x2",
         {167, 123, 255},
         "See apps by true footprint and uninstall them with all their leftovers.",
         ""},
        {Screen::privacy,
         "Privacy",
         "hand.raised",
         {62, 155, 255},
         "Clear browsing traces — caches, histories, cookies — across your browsers.",
         ""},
        {Screen::tune,
         "Tune",
         "speedometer",
         {255, 107, 94},
         "Free up memory, flush the DNS cache, and manage startup items.",
         ""},
        {Screen::system,
         "System",
         "internaldrive",
         {124, 131, 255},
         "Local snapshots, purgeable space, and disk-image / VM bloat.",
         ""},
    };
    return all;
}

}  // namespace

TEST_F(ToolsScreen, saysWhatItIs) {
    EXPECT_EQ(tools().title().toStdString(), "Tools");
    EXPECT_EQ(tools().subtitle().toStdString(), "everything Zelk can do");
    EXPECT_EQ(tools().symbol().toStdString(), "list.star");
    EXPECT_EQ(tools().tint(), QColor(154, 160, 255));
}

TEST_F(ToolsScreen, listsTheTenToolsInOrder) {
    ASSERT_EQ(tools().rowCount(), 10);
    for (int row = 0; row < 10; ++row) {
        const ToolRow& expected = toolRows()[static_cast<std::size_t>(row)];
        EXPECT_EQ(text(row, "title"), expected.title);
        EXPECT_EQ(text(row, "symbol"), expected.symbol);
        EXPECT_EQ(at(row, "tint").value<QColor>(), expected.tint) << expected.title;
        EXPECT_EQ(text(row, "detail"), expected.detail);
        EXPECT_EQ(text(row, "cleanup"), expected.cleanup) << expected.title;
        EXPECT_EQ(at(row, "cleans").toBool(), !expected.cleanup.empty()) << expected.title;
    }
}

TEST_F(ToolsScreen, saysAWholeRowToAScreenReader) {
    EXPECT_EQ(text(1, "spoken"),
              "Reclaim. Find caches, logs, and developer junk, grouped by safety. clear it to the Trash");
    EXPECT_EQ(text(5, "spoken"), "Health. Live disk, memory, CPU, and battery gauges.");
}

TEST_F(ToolsScreen, selectsTheModuleOfThePressedRow) {
    for (int row = 0; row < 10; ++row) {
        tools().press(row);
        EXPECT_EQ(model().selection(), toolRows()[static_cast<std::size_t>(row)].screen);
    }
}

TEST_F(ToolsScreen, selectsNothingWhereThereIsNoRow) {
    model().setSelection(Screen::tools);
    tools().press(-1);
    tools().press(10);
    EXPECT_EQ(model().selection(), Screen::tools);
}

TEST_F(ToolsScreen, hasNothingOutsideItsRowsAndRoles) {
    EXPECT_FALSE(tools().data(tools().index(10), ToolsScreenModel::titleRole).isValid());
    EXPECT_FALSE(tools().data(tools().index(0), Qt::DecorationRole).isValid());
    EXPECT_EQ(tools().rowCount(tools().index(0)), 0);
}

}  // namespace zelk
