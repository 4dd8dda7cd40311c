// SPDX-License-Identifier: MIT
#include "ui/screens/reclaim/CategoryList.h"

#include <gmock/gmock.h>

#include "ui/ReclaimFixture.h"
#include "ui/RowMirror.h"
#include "ui/theme/DisplayText.h"

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Audience = AppModel::Audience;

const QColor safeTint(50, 199, 123);
const QColor regeneratesTint(245, 166, 35);
const QColor reviewTint(255, 107, 94);

class CategoryListTest : public ReclaimFixture {
protected:
    CategoryListTest() { fillJunk(); }

    CategoryList& list() { return *screen().categories(); }
    std::string text(int row, int role) { return ReclaimFixture::text(list(), row, role); }
    bool chosen(int row) { return flag(list(), row, CategoryList::chosenRole); }
    void toggle(const std::string& id) { list().toggle(rowOf(list(), CategoryList::idRole, id)); }
    std::string footer() { return list().footer().toStdString(); }
    std::string menu() { return list().menuLabel().toStdString(); }
};

struct Row {
    std::string id;
    std::string name;
    std::string note;
    QColor tint;
    std::string bytes;
    std::string count;
    bool chosen;
};

const std::vector<Row>& rows() {
    static const std::vector<Row> all{
        {"yarn_cache", "Yarn cache", "Re-populated on next install.", safeTint, "50 MB", "1 items", true},
        {"python_venv", "Python .venv", "Recreate with python -m venv / your tool.", reviewTint, "40 MB", "1 items",
         false},
        {"node_modules", "node_modules", "Rebuilds via npm/pnpm install.", regeneratesTint, "35 MB", "2 items", false},
        {"npm_cache", "npm cache", "Cleared with npm cache clean --force.", safeTint, "30 MB", "1 items", true},
        {"electron_cache", "App caches (Electron)", "Quit the app first; covers Cursor, VS Code, Claude, Chrome.",
         safeTint, "7 MB", "2 items", true},
    };
    return all;
}

}  // namespace

TEST_F(CategoryListTest, listsLargestFirstWhateverTheAge) {
    surveyFor(Audience::normal);
    ASSERT_EQ(list().rowCount(), 5);
    for (int row = 0; row < 5; ++row) {
        const Row& expected = rows()[static_cast<std::size_t>(row)];
        EXPECT_EQ(text(row, CategoryList::idRole), expected.id);
        EXPECT_EQ(text(row, CategoryList::nameRole), expected.name);
        EXPECT_EQ(text(row, CategoryList::noteRole), expected.note);
        EXPECT_EQ(list().data(list().index(row), CategoryList::tintRole).value<QColor>(), expected.tint);
        EXPECT_EQ(byteFigure(list().data(list().index(row), CategoryList::bytesRole).toLongLong()).toStdString(),
                  expected.bytes);
        EXPECT_EQ(text(row, CategoryList::countRole), expected.count);
        EXPECT_EQ(chosen(row), expected.chosen) << expected.id;
        EXPECT_THAT(text(row, CategoryList::spokenRole), HasSubstr(expected.name));
        EXPECT_THAT(text(row, CategoryList::spokenRole), HasSubstr(expected.bytes));
    }
}

TEST_F(CategoryListTest, choosesSafeCategoriesOnFirstShow) {
    screen();
    survey();
    EXPECT_THAT(list().chosen(), IsEmpty());  // the screen was not shown yet
    EXPECT_EQ(menu(), "None");
    screen().setOnScreen(true);
    EXPECT_THAT(list().chosen(), ElementsAre("electron_cache", "npm_cache", "yarn_cache"));
    EXPECT_EQ(menu(), "3");
    EXPECT_EQ(footer(), "4 items · 87 MB");
    EXPECT_TRUE(list().reviewable());
}

TEST_F(CategoryListTest, developerGetsNoInitialChoice) {
    surveyFor(Audience::developer);
    EXPECT_THAT(list().chosen(), IsEmpty());
    model().setAudience(Audience::normal);
    EXPECT_EQ(list().chosen().size(), 3U);
}

TEST_F(CategoryListTest, keepsChoiceAcrossRescansAndVisits) {
    surveyFor(Audience::normal);
    list().chooseNone();
    toggle("node_modules");
    put(home + "/Library/Caches/CocoaPods", 60 * megabyte);  // safe, and new in this survey
    survey();
    EXPECT_THAT(list().chosen(), ElementsAre("node_modules"));
    EXPECT_EQ(text(0, CategoryList::idRole), "cocoapods_cache");
    EXPECT_FALSE(chosen(0));
    screen().setOnScreen(false);
    screen().setOnScreen(true);
    model().setAudience(Audience::developer);
    model().setAudience(Audience::normal);
    EXPECT_THAT(list().chosen(), ElementsAre("node_modules"));
}

TEST_F(CategoryListTest, keepsChoiceWhileSurveyIsEmpty) {
    surveyFor(Audience::normal);
    model().startScan();
    EXPECT_EQ(list().rowCount(), 0);
    EXPECT_EQ(footer(), "0 items · 0 bytes");
    EXPECT_FALSE(list().reviewable());
    EXPECT_EQ(menu(), "3");
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    EXPECT_EQ(footer(), "4 items · 87 MB");
}

TEST_F(CategoryListTest, menuChoosesAllSafeOrNone) {
    surveyFor(Audience::normal);
    list().chooseAll();
    EXPECT_EQ(menu(), "5");
    EXPECT_EQ(footer(), "7 items · 162 MB");
    list().chooseNone();
    EXPECT_EQ(menu(), "None");
    EXPECT_EQ(footer(), "No categories selected");
    EXPECT_FALSE(list().reviewable());
    list().chooseSafe();
    EXPECT_EQ(menu(), "3");
    EXPECT_EQ(footer(), "4 items · 87 MB");
}

TEST_F(CategoryListTest, vanishedChoiceCountsOnlyInMenu) {
    surveyFor(Audience::normal);
    list().chooseNone();
    toggle("yarn_cache");
    loseItem(yarn);
    EXPECT_EQ(list().rowCount(), 4);
    EXPECT_EQ(menu(), "1");
    EXPECT_EQ(footer(), "0 items · 0 bytes");
    EXPECT_FALSE(list().reviewable());
    list().review();
    EXPECT_FALSE(screen().reviewing());
    list().chooseAll();  // drops the one that vanished
    EXPECT_EQ(menu(), "4");
    EXPECT_EQ(footer(), "6 items · 112 MB");
}

TEST_F(CategoryListTest, tapTogglesRow) {
    surveyFor(Audience::normal);
    int footers = 0;
    QObject::connect(&list(), &CategoryList::selectionChanged, &list(), [&] { ++footers; });
    RowMirror mirror(list(), {CategoryList::idRole});
    list().toggle(2);
    EXPECT_TRUE(chosen(2));
    EXPECT_EQ(menu(), "4");
    EXPECT_EQ(footer(), "6 items · 122 MB");
    EXPECT_EQ(footers, 1);
    EXPECT_THAT(mirror.changed(), ElementsAre(2));
    list().toggle(2);
    EXPECT_FALSE(chosen(2));
    EXPECT_EQ(footer(), "4 items · 87 MB");
    mirror.expectFresh();
}

TEST_F(CategoryListTest, ignoresInvalidRows) {
    surveyFor(Audience::normal);
    for (const int row : {-1, 5, 100}) list().toggle(row);
    EXPECT_EQ(menu(), "3");
    EXPECT_FALSE(list().data(list().index(5), CategoryList::nameRole).isValid());
    EXPECT_FALSE(list().data(QModelIndex(), CategoryList::nameRole).isValid());
    EXPECT_EQ(list().rowCount(list().index(0)), 0);
}

TEST_F(CategoryListTest, chartHasOneSlicePerRow) {
    surveyFor(Audience::normal);
    const std::vector<BubbleSlice>& slices = list().bubbles()->slices();
    ASSERT_EQ(slices.size(), 5U);
    const std::vector<std::int64_t> bytes{50'000'000, 40'000'000, 35'000'000, 30'000'000, 7'000'000};
    for (std::size_t row = 0; row < 5; ++row) {
        EXPECT_EQ(slices[row].id, rows()[row].id);
        EXPECT_EQ(slices[row].label.toStdString(), rows()[row].name);
        EXPECT_EQ(slices[row].bytes, bytes[row]);
        EXPECT_EQ(slices[row].color, rows()[row].tint);
        EXPECT_EQ(slices[row].selected, rows()[row].chosen);
        EXPECT_FALSE(slices[row].reclaimable);
        EXPECT_TRUE(slices[row].icon.isNull());
    }
}

TEST_F(CategoryListTest, bubbleTapTogglesItsRow) {
    surveyFor(Audience::normal);
    const BubbleSlice modules = list().bubbles()->slices()[2];
    list().bubbles()->tap(modules);
    EXPECT_TRUE(chosen(2));
    EXPECT_TRUE(list().bubbles()->slices()[2].selected);
    list().bubbles()->tick(list().bubbles()->slices()[2]);
    EXPECT_FALSE(chosen(2));
    EXPECT_FALSE(list().bubbles()->slices()[2].selected);
    EXPECT_EQ(footer(), "4 items · 87 MB");
}

TEST_F(CategoryListTest, ignoresTapOnVanishedBubble) {
    surveyFor(Audience::normal);
    const BubbleSlice gone = list().bubbles()->slices()[0];
    loseItem(yarn);
    list().chooseNone();
    list().bubbles()->tap(gone);
    EXPECT_THAT(list().chosen(), IsEmpty());
}

TEST_F(CategoryListTest, signalsRowLevelEdits) {
    surveyFor(Audience::normal);
    RowMirror mirror(list(), {CategoryList::idRole});
    loseItem(webModules);  // node_modules moves below npm
    mirror.expectFresh();
    loseItem(npm);
    EXPECT_EQ(list().rowCount(), 4);
    mirror.expectFresh();
    list().chooseAll();
    list().chooseSafe();
    mirror.expectFresh();
    put(home + "/Library/Caches/CocoaPods", 60 * megabyte);
    survey();
    mirror.expectFresh();
    EXPECT_EQ(list().rowCount(), 6);
}

TEST_F(CategoryListTest, rescanOfUnchangedDiskKeepsSlices) {
    surveyFor(Audience::normal);
    const std::vector<BubbleSlice> before = list().bubbles()->slices();
    survey();
    EXPECT_EQ(list().bubbles()->slices(), before);
}

}  // namespace zelk
