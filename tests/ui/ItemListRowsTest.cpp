// SPDX-License-Identifier: MIT
// Checks the row signals of ItemList: only rows that really changed may be signalled.
#include <gmock/gmock.h>

#include "ui/ReclaimFixture.h"
#include "ui/RowMirror.h"
#include "ui/screens/reclaim/ItemList.h"

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Audience = AppModel::Audience;

class ItemListRowsTest : public ReclaimFixture {
protected:
    void show() {
        surveyFor(Audience::developer);
        list().setAgeDays(0);
        mirror_ = std::make_unique<RowMirror>(list(),
                                              QList<int>{ItemList::nameRole, ItemList::placeRole, ItemList::groupRole});
    }
    ItemList& list() { return *screen().items(); }
    RowMirror& mirror() { return *mirror_; }
    int named(const std::string& name) { return rowOf(list(), ItemList::nameRole, name); }
    int inFolder(const std::string& folder) { return rowOf(list(), ItemList::placeRole, folder); }
    void unfoldAll() {
        for (int row = 0; row < list().rowCount(); ++row) list().setOpen(row, true);
        mirror().forget();
    }

private:
    std::unique_ptr<RowMirror> mirror_;
};

}  // namespace

TEST_F(ItemListRowsTest, toggleChangesItemAndHeader) {
    fillJunk();
    show();
    unfoldAll();
    const int web = inFolder(home + "/projects/web");
    list().toggle(web);
    EXPECT_THAT(mirror().changed(), ElementsAre(list().groupRow(web), web));
    EXPECT_EQ(mirror().inserted() + mirror().removed(), 0);
    mirror().expectFresh();
}

TEST_F(ItemListRowsTest, itemListedTwiceIsToggledAndCountedTwice) {
    fillJunk();
    model().setScanRoots({home, home + "/projects"});
    show();
    unfoldAll();
    const int web = inFolder(home + "/projects/web");
    const QString before = list().footer() + list().footerBytes();
    const auto ticks = [&] {
        int set = 0;
        for (int row = 0; row < list().rowCount(); ++row)
            if (text(list(), row, ItemList::placeRole) == home + "/projects/web" &&
                flag(list(), row, ItemList::chosenRole))
                ++set;
        return set;
    };
    ASSERT_EQ(ticks(), 2);
    list().toggle(web);
    EXPECT_EQ(ticks(), 0);
    mirror().expectFresh();
    const QString after = list().footer() + list().footerBytes();
    list().toggle(web);
    EXPECT_EQ(list().footer() + list().footerBytes(), before);
    EXPECT_NE(after, before);
    for (int row = 0; row < list().rowCount(); ++row)
        if (flag(list(), row, ItemList::groupRole) && flag(list(), row, ItemList::chosenRole)) list().toggle(row);
    EXPECT_FALSE(list().cleanable()) << list().footer().toStdString();
    mirror().expectFresh();
}

TEST_F(ItemListRowsTest, refusedToggleChangesNoRow) {
    fillJunk();
    machine.workspace.running = {"Cursor"};
    show();
    unfoldAll();
    list().toggle(inFolder(home + "/Library/Application Support/Cursor"));
    EXPECT_THAT(mirror().changed(), IsEmpty());
}

TEST_F(ItemListRowsTest, categoryToggleChangesHeaderAndItems) {
    fillJunk();
    show();
    unfoldAll();
    const int header = list().groupRow(inFolder(home + "/projects/web"));
    list().toggle(header);
    EXPECT_THAT(mirror().changed(), ElementsAre(header, header + 1, header + 2));
    mirror().expectFresh();
}

TEST_F(ItemListRowsTest, foldedCategoryToggleChangesHeaderOnly) {
    fillJunk();
    show();
    const int header = named("node_modules");
    list().toggle(header);
    EXPECT_THAT(mirror().changed(), ElementsAre(header));
    mirror().expectFresh();
}

TEST_F(ItemListRowsTest, unfoldingInsertsAndFoldingRemovesItsItems) {
    fillJunk();
    show();
    const int header = named("node_modules");
    list().setOpen(header, true);
    EXPECT_EQ(mirror().inserted(), 2);
    EXPECT_EQ(mirror().removed(), 0);
    EXPECT_THAT(mirror().changed(), ElementsAre(header));
    mirror().expectFresh();
    mirror().forget();
    list().setOpen(header, true);  // already open
    EXPECT_EQ(mirror().inserted(), 0);
    EXPECT_THAT(mirror().changed(), IsEmpty());
    list().setOpen(header, false);
    EXPECT_EQ(mirror().removed(), 2);
    EXPECT_EQ(mirror().inserted(), 0);
    EXPECT_THAT(mirror().changed(), ElementsAre(header));
    mirror().expectFresh();
}

TEST_F(ItemListRowsTest, ageFilterMovesNoRemainingRow) {
    fillJunk();
    putInProject(home + "/projects/web2", "node_modules", 80 * megabyte);  // keeps the order of the categories
    show();
    unfoldAll();
    const int all = list().rowCount();
    list().setAgeDays(14);
    EXPECT_EQ(mirror().removed(), 2);  // two items are younger
    EXPECT_EQ(mirror().inserted(), 0);
    EXPECT_EQ(list().rowCount(), all - 2);
    mirror().expectFresh();
    mirror().forget();
    list().setAgeDays(0);
    EXPECT_EQ(mirror().inserted(), 2);
    EXPECT_EQ(mirror().removed(), 0);
    mirror().expectFresh();
}

TEST_F(ItemListRowsTest, ageThatHidesNothingInsertsAndRemovesNoRow) {
    fillJunk();
    show();
    unfoldAll();
    list().setAgeDays(1);
    EXPECT_EQ(mirror().inserted() + mirror().removed(), 0);
    mirror().expectFresh();
}

TEST_F(ItemListRowsTest, reordersCategoriesConsistently) {
    fillJunk();  // node_modules shrinks from 35 MB to 25 MB, below the 30 MB of npm
    show();
    unfoldAll();
    list().setAgeDays(14);
    EXPECT_LT(named("npm cache"), named("node_modules"));
    mirror().expectFresh();
    list().setAgeDays(0);
    EXPECT_GT(named("npm cache"), named("node_modules"));
    mirror().expectFresh();
}

TEST_F(ItemListRowsTest, surveyKeepsUnfoldedCategories) {
    fillJunk();
    show();
    list().setOpen(named("node_modules"), true);
    put(home + "/Library/Caches/CocoaPods", 60 * megabyte);
    survey();
    mirror().expectFresh();
    const int header = named("node_modules");
    EXPECT_TRUE(flag(list(), header, ItemList::openRole));
    EXPECT_EQ(text(list(), header + 2, ItemList::placeRole), home + "/projects/app");
    EXPECT_FALSE(flag(list(), named("CocoaPods cache"), ItemList::openRole));
}

TEST_F(ItemListRowsTest, filterKeepsUnfoldedCategories) {
    fillJunk();
    show();
    list().setOpen(named("node_modules"), true);
    list().setAgeDays(180);
    EXPECT_EQ(list().rowCount(), 0);
    mirror().expectFresh();
    list().setAgeDays(0);
    EXPECT_TRUE(flag(list(), named("node_modules"), ItemList::openRole));
    mirror().expectFresh();
}

TEST_F(ItemListRowsTest, lostItemRemovesOnlyItsRow) {
    fillJunk();
    putInProject(home + "/projects/web2", "node_modules", 80 * megabyte);
    show();
    unfoldAll();
    loseItem(appModules);
    EXPECT_EQ(mirror().removed(), 1);
    EXPECT_EQ(mirror().inserted(), 0);
    mirror().expectFresh();
    loseItem(npm);  // the last of its category
    EXPECT_EQ(mirror().removed(), 3);
    mirror().expectFresh();
}

TEST_F(ItemListRowsTest, seedingMarksItemsInUse) {
    fillJunk();
    show();
    unfoldAll();
    machine.workspace.running = {"Slack"};
    loseItem(yarn);
    const int row = inFolder(home + "/Library/Application Support/Slack");
    EXPECT_EQ(text(list(), row, ItemList::lineRole), "quit Slack to clear");
    EXPECT_EQ(list().footer().toStdString(), "4 items selected");
    mirror().expectFresh();
}

TEST_F(ItemListRowsTest, followsReviewOfCategories) {
    fillJunk();
    show();
    unfoldAll();
    model().setAudience(Audience::normal);
    screen().categories()->chooseNone();
    screen().categories()->toggle(0);
    screen().categories()->review();
    mirror().expectFresh();
    EXPECT_EQ(list().footer().toStdString(), "1 items selected");
}

TEST_F(ItemListRowsTest, rowsAreReadableInEverySignal) {
    fillJunk();
    show();
    unfoldAll();
    int reads = 0;
    const auto look = [&] {
        ++reads;
        for (int row = 0; row < list().rowCount(); ++row) {
            EXPECT_FALSE(text(list(), row, ItemList::spokenRole).empty());
            EXPECT_GE(list().groupRow(row), 0);
        }
    };
    QObject::connect(&list(), &ItemList::footerChanged, &list(), look);
    QObject::connect(&list(), &ItemList::ageChanged, &list(), look);
    QObject::connect(&list(), &QAbstractItemModel::rowsInserted, &list(), look);
    QObject::connect(&list(), &QAbstractItemModel::rowsRemoved, &list(), look);
    QObject::connect(&list(), &QAbstractItemModel::rowsAboutToBeRemoved, &list(), look);
    QObject::connect(&list(), &QAbstractItemModel::dataChanged, &list(), look);
    list().toggle(1);
    list().setAgeDays(14);
    loseItem(yarn);
    survey();
    EXPECT_GT(reads, 4);
    mirror().expectFresh();
}

TEST_F(ItemListRowsTest, toggleAmong20000ItemsChangesTwoRows) {
    for (int item = 0; item < 20'000; ++item)
        machine.directories.file(home + "/p/" + std::to_string(item) + "/__pycache__/m.pyc", 1'000);
    surveyFor(Audience::developer);
    list().setAgeDays(0);
    list().setOpen(0, true);
    ASSERT_EQ(list().rowCount(), 20'001);
    std::vector<std::pair<int, int>> ranges;
    QObject::connect(
        &list(), &QAbstractItemModel::dataChanged, &list(),
        [&](const QModelIndex& first, const QModelIndex& last) { ranges.emplace_back(first.row(), last.row()); });
    list().toggle(12'345);
    EXPECT_THAT(ranges, testing::UnorderedElementsAre(std::pair(0, 0), std::pair(12'345, 12'345)));
    EXPECT_EQ(list().footer().toStdString(), "19999 items selected");
    EXPECT_EQ(list().shownText().toStdString(), "20000 of 20000 shown");
    EXPECT_EQ(text(list(), 0, ItemList::figureRole), "20000 · 20 MB");
    ranges.clear();
    list().toggle(0);
    EXPECT_EQ(list().footer().toStdString(), "20000 items selected");
    EXPECT_LE(ranges.size(), 2U);
}

}  // namespace zelk
