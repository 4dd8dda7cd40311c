// SPDX-License-Identifier: MIT
#include "ui/screens/reclaim/ItemList.h"

#include <gmock/gmock.h>

#include "ui/ReclaimFixture.h"

namespace zelk {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;
using Audience = AppModel::Audience;

class ItemListTest : public ReclaimFixture {
protected:
    ItemListTest() { fillJunk(); }

    ItemList& list() { return *screen().items(); }
    std::string text(int row, int role) { return ReclaimFixture::text(list(), row, role); }
    bool flag(int row, int role) { return ReclaimFixture::flag(list(), row, role); }
    int named(const std::string& name) { return rowOf(list(), ItemList::nameRole, name); }
    int inFolder(const std::string& folder) { return rowOf(list(), ItemList::placeRole, folder); }
    std::vector<std::string> names() {
        std::vector<std::string> all;
        for (int row = 0; row < list().rowCount(); ++row) all.push_back(text(row, ItemList::nameRole));
        return all;
    }
    std::string footer() { return (list().footer() + " / " + list().footerBytes()).toStdString(); }
    std::string shown() { return list().shownText().toStdString(); }
    void unfoldAll() {
        for (int row = 0; row < list().rowCount(); ++row) list().setOpen(row, true);
    }
    void surveyWhileRunning(std::vector<std::string> applications) {
        machine.workspace.running = std::move(applications);
        surveyFor(Audience::developer);
        list().setAgeDays(0);
        unfoldAll();
    }
};

}  // namespace

TEST_F(ItemListTest, startsFoldedBySizeWithAgeOf14Days) {
    surveyFor(Audience::developer);
    EXPECT_EQ(list().ageDays(), 14);
    EXPECT_EQ(list().ageText().toStdString(), "14 days");
    EXPECT_EQ(shown(), "5 of 7 shown");
    EXPECT_THAT(names(),
                ElementsAre("Yarn cache", "Python .venv", "npm cache", "node_modules", "App caches (Electron)"));
    struct Header {
        std::string figure, note, grade;
        QColor tint;
    };
    const std::vector<Header> headers{
        {"1 · 50 MB", "Re-populated on next install.", "safe", {50, 199, 123}},
        {"1 · 40 MB", "Recreate with python -m venv / your tool.", "review", {255, 107, 94}},
        {"1 · 30 MB", "Cleared with npm cache clean --force.", "safe", {50, 199, 123}},
        {"1 · 25 MB", "Rebuilds via npm/pnpm install.", "regenerates", {245, 166, 35}},
        {"1 · 5 MB", "Quit the app first; covers Cursor, VS Code, Claude, Chrome.", "safe", {50, 199, 123}},
    };
    for (int row = 0; row < 5; ++row) {
        const Header& expected = headers[static_cast<std::size_t>(row)];
        EXPECT_TRUE(flag(row, ItemList::groupRole));
        EXPECT_FALSE(flag(row, ItemList::openRole));
        EXPECT_EQ(text(row, ItemList::figureRole), expected.figure);
        EXPECT_EQ(text(row, ItemList::placeRole), expected.note);
        EXPECT_EQ(text(row, ItemList::gradeRole), expected.grade);
        EXPECT_EQ(list().data(list().index(row), ItemList::tintRole).value<QColor>(), expected.tint);
        EXPECT_EQ(list().groupRow(row), row);
        EXPECT_THAT(text(row, ItemList::spokenRole), HasSubstr(expected.grade));
    }
}

TEST_F(ItemListTest, selectsAllButReviewItems) {
    surveyFor(Audience::developer);
    std::vector<bool> ticks;
    for (int row = 0; row < 5; ++row) ticks.push_back(flag(row, ItemList::chosenRole));
    EXPECT_THAT(ticks, ElementsAre(true, false, true, true, true));
    EXPECT_EQ(footer(), "4 items selected / 110 MB");
    EXPECT_TRUE(list().cleanable());
}

TEST_F(ItemListTest, unfoldedCategoryListsItemsBySize) {
    surveyFor(Audience::developer);
    list().setAgeDays(0);
    list().setOpen(named("node_modules"), true);
    ASSERT_THAT(names(), ElementsAre("Yarn cache", "Python .venv", "node_modules", "node_modules", "node_modules",
                                     "npm cache", "App caches (Electron)"));
    EXPECT_TRUE(flag(2, ItemList::openRole));
    EXPECT_EQ(text(2, ItemList::figureRole), "2 · 35 MB");
    EXPECT_EQ(text(3, ItemList::placeRole), home + "/projects/web");
    EXPECT_EQ(text(3, ItemList::ageRole), "100d");
    EXPECT_EQ(text(3, ItemList::figureRole), "25 MB");
    EXPECT_EQ(text(3, ItemList::lineRole), "");
    EXPECT_EQ(text(4, ItemList::placeRole), home + "/projects/app");
    EXPECT_EQ(text(4, ItemList::ageRole), "2d");
    EXPECT_EQ(text(4, ItemList::figureRole), "10 MB");
    EXPECT_EQ(list().groupRow(4), 2);
    EXPECT_FALSE(flag(4, ItemList::groupRole));
}

TEST_F(ItemListTest, accessibleTextCoversTheWholeRow) {
    surveyWhileRunning({"Cursor"});
    const std::string spoken = text(inFolder(home + "/Library/Application Support/Cursor"), ItemList::spokenRole);
    for (const char* part : {"Cache", "5 MB", "100d", "quit Cursor to clear", "/Application Support/Cursor"})
        EXPECT_THAT(spoken, HasSubstr(part));
    EXPECT_THAT(text(inFolder(home + "/projects/py"), ItemList::spokenRole), StartsWith(".venv"));
}

TEST_F(ItemListTest, accessibleTextTellsFoldedState) {
    surveyFor(Audience::developer);
    EXPECT_THAT(text(0, ItemList::spokenRole), HasSubstr("collapsed"));
    list().setOpen(0, true);
    EXPECT_THAT(text(0, ItemList::spokenRole), HasSubstr("expanded"));
}

TEST_F(ItemListTest, showsCommandOfCommandItem) {
    surveyWhileRunning({});
    const int row = inFolder(home + "/.npm");
    EXPECT_EQ(text(row, ItemList::nameRole), "_cacache");
    EXPECT_EQ(text(row, ItemList::lineRole), "/usr/bin/env npm cache clean --force");
}

TEST_F(ItemListTest, truncatesAgesToWholeDays) {
    put(home + "/Library/Caches/CocoaPods", megabyte, 19.99);
    put(home + "/Library/Caches/com.apple.Photos", megabyte, 0.99);
    put(home + "/Library/Caches/com.apple.Music", megabyte, -3.5);  // modified in the future
    surveyWhileRunning({});
    EXPECT_EQ(text(named("CocoaPods"), ItemList::ageRole), "19d");
    EXPECT_EQ(text(named("com.apple.Photos"), ItemList::ageRole), "0d");
    EXPECT_EQ(text(named("com.apple.Music"), ItemList::ageRole), "-3d");
}

TEST_F(ItemListTest, hidesItemOfExactlyTheFilterAge) {
    put(home + "/Library/Caches/CocoaPods", megabyte, 14);
    surveyFor(Audience::developer);
    EXPECT_EQ(named("CocoaPods cache"), -1);
    EXPECT_EQ(shown(), "5 of 8 shown");
    machine.clock.advance(1);
    list().setAgeDays(15);
    list().setAgeDays(14);
    EXPECT_NE(named("CocoaPods cache"), -1);
    EXPECT_EQ(shown(), "6 of 8 shown");
}

TEST_F(ItemListTest, ageOfZeroShowsAll) {
    surveyFor(Audience::developer);
    list().setAgeDays(0);
    EXPECT_EQ(list().ageText().toStdString(), "all");
    EXPECT_EQ(shown(), "7 of 7 shown");
    list().setAgeDays(1);
    EXPECT_EQ(list().ageText().toStdString(), "1 days");
    EXPECT_EQ(shown(), "7 of 7 shown");
}

TEST_F(ItemListTest, reportsThatAllItemsAreTooYoung) {
    surveyFor(Audience::developer);
    EXPECT_FALSE(list().allYoung());
    list().setAgeDays(180);
    EXPECT_TRUE(list().allYoung());
    EXPECT_EQ(list().rowCount(), 0);
    EXPECT_EQ(shown(), "0 of 7 shown");
    EXPECT_EQ(footer(), "0 items selected / 0 bytes");
    EXPECT_FALSE(list().cleanable());
    list().clean();
    EXPECT_FALSE(screen().reviewing());
}

TEST_F(ItemListTest, hiddenItemsStaySelectedButAreNotCleaned) {
    surveyFor(Audience::developer);
    EXPECT_EQ(footer(), "4 items selected / 110 MB");
    list().setAgeDays(0);
    EXPECT_EQ(footer(), "6 items selected / 122 MB");
    list().setAgeDays(14);
    list().clean();
    EXPECT_EQ(screen().dryRun()->rows()->rowCount(), 4);
    EXPECT_EQ(screen().cleanup().selection().selected().size(), 6U);
}

TEST_F(ItemListTest, ignoresApplicationSettings) {
    model().setAgeFilterDays(90);
    model().setHardDeleteEnabled(true);
    surveyFor(Audience::developer);
    EXPECT_EQ(list().ageDays(), 14);
    list().clean();
    EXPECT_FALSE(screen().dryRun()->hardDelete());
    list().setAgeDays(3);
    EXPECT_EQ(model().ageFilterDays(), 90);
}

TEST_F(ItemListTest, toggleSelectsAndDeselectsItem) {
    surveyFor(Audience::developer);
    list().setAgeDays(0);
    unfoldAll();
    const int web = inFolder(home + "/projects/web");
    const int header = list().groupRow(web);
    list().toggle(web);
    EXPECT_FALSE(flag(web, ItemList::chosenRole));
    EXPECT_FALSE(flag(header, ItemList::chosenRole));  // one of two
    EXPECT_EQ(footer(), "5 items selected / 97 MB");
    list().toggle(web);
    EXPECT_TRUE(flag(header, ItemList::chosenRole));
    EXPECT_EQ(footer(), "6 items selected / 122 MB");
}

TEST_F(ItemListTest, togglingPartlySelectedCategorySelectsAll) {
    surveyFor(Audience::developer);
    list().setAgeDays(0);
    unfoldAll();
    const int web = inFolder(home + "/projects/web");
    const int header = list().groupRow(web);
    list().toggle(web);
    list().toggle(header);
    EXPECT_TRUE(flag(web, ItemList::chosenRole));
    EXPECT_TRUE(flag(header, ItemList::chosenRole));
    list().toggle(header);
    EXPECT_FALSE(flag(web, ItemList::chosenRole));
    EXPECT_FALSE(flag(header, ItemList::chosenRole));
    EXPECT_EQ(footer(), "4 items selected / 87 MB");
}

TEST_F(ItemListTest, categoryToggleSkipsFilteredItems) {
    surveyFor(Audience::developer);
    list().toggle(named("node_modules"));
    list().setAgeDays(0);
    unfoldAll();
    EXPECT_FALSE(flag(inFolder(home + "/projects/web"), ItemList::chosenRole));
    EXPECT_TRUE(flag(inFolder(home + "/projects/app"), ItemList::chosenRole));
}

TEST_F(ItemListTest, reviewItemCanBeSelected) {
    surveyFor(Audience::developer);
    list().toggle(named("Python .venv"));
    EXPECT_TRUE(flag(named("Python .venv"), ItemList::chosenRole));
    EXPECT_EQ(footer(), "5 items selected / 150 MB");
}

TEST_F(ItemListTest, itemInUseCannotBeSelected) {
    surveyWhileRunning({"Cursor"});
    const int row = inFolder(home + "/Library/Application Support/Cursor");
    EXPECT_EQ(text(row, ItemList::lineRole), "quit Cursor to clear");
    EXPECT_THAT(text(row, ItemList::spokenRole), HasSubstr("quit Cursor to clear"));
    EXPECT_FALSE(flag(row, ItemList::freeRole));
    EXPECT_FALSE(flag(row, ItemList::chosenRole));
    EXPECT_EQ(footer(), "5 items selected / 117 MB");
    list().toggle(row);
    EXPECT_FALSE(flag(row, ItemList::chosenRole));
    EXPECT_EQ(footer(), "5 items selected / 117 MB");
}

TEST_F(ItemListTest, itemOfAnApplicationCannotBeSelectedIfNobodySaysWhatRuns) {
    machine.workspace.runningKnown = false;
    surveyWhileRunning({});
    const int row = inFolder(home + "/Library/Application Support/Cursor");
    EXPECT_EQ(text(row, ItemList::lineRole), "may be in use: what runs can’t be seen from here");
    EXPECT_FALSE(flag(row, ItemList::freeRole));
    list().toggle(row);
    EXPECT_FALSE(flag(row, ItemList::chosenRole));
    EXPECT_TRUE(flag(inFolder(home + "/projects/web"), ItemList::freeRole)) << "no application's";
    EXPECT_EQ(footer(), "4 items selected / 115 MB");
}

TEST_F(ItemListTest, itemOfAToolSaysThatASandboxDoesNotHaveIt) {
    surveyWhileRunning({});
    EXPECT_EQ(text(inFolder(home + "/.npm"), ItemList::lineRole), "/usr/bin/env npm cache clean --force");
    machine.locations.sandboxed = true;
    EXPECT_EQ(text(inFolder(home + "/.npm"), ItemList::lineRole), "needs npm, which Flatpak’s sandbox does not have");
    EXPECT_EQ(text(inFolder(home + "/projects/web"), ItemList::lineRole), "");
}

TEST_F(ItemListTest, categoryToggleSkipsItemsInUse) {
    surveyWhileRunning({"Cursor"});
    const int header = named("App caches (Electron)");
    EXPECT_TRUE(flag(header, ItemList::chosenRole));  // all that is not in use
    list().toggle(header);
    EXPECT_FALSE(flag(header, ItemList::chosenRole));
    EXPECT_EQ(footer(), "4 items selected / 115 MB");
    EXPECT_TRUE(screen().cleanup().selection().selected().contains(cursorCache));  // unchanged
    list().toggle(header);
    EXPECT_TRUE(flag(header, ItemList::chosenRole));
    EXPECT_FALSE(flag(inFolder(home + "/Library/Application Support/Cursor"), ItemList::chosenRole));
    EXPECT_EQ(footer(), "5 items selected / 117 MB");
}

TEST_F(ItemListTest, categoryEntirelyInUseCannotBeSelected) {
    surveyWhileRunning({"Slack", "Cursor"});
    const int header = named("App caches (Electron)");
    EXPECT_FALSE(flag(header, ItemList::chosenRole));
    EXPECT_FALSE(flag(header, ItemList::freeRole));
    const auto before = screen().cleanup().selection().selected();
    list().toggle(header);
    EXPECT_FALSE(flag(header, ItemList::chosenRole));
    EXPECT_EQ(screen().cleanup().selection().selected(), before);
}

TEST_F(ItemListTest, reviewHoldsSelectedVisibleItemsNotInUse) {
    surveyWhileRunning({"Cursor"});
    list().toggle(named("Yarn cache"));
    list().clean();
    ASSERT_TRUE(screen().reviewing());
    std::set<std::string> ids;
    for (const Reclaimable& item : screen().dryRun()->rows()->items()) ids.insert(item.id);
    EXPECT_THAT(ids, ElementsAre(npm, slackCache, appModules, webModules));
}

TEST_F(ItemListTest, showsHostileNamesRepaired) {
    putInProject(home + "/pro\njects\xFF", "node_modules", 90 * megabyte);
    surveyFor(Audience::developer);
    list().setOpen(0, true);
    const QString folder = list().data(list().index(1), ItemList::placeRole).toString();
    EXPECT_FALSE(folder.contains('\n'));
    EXPECT_TRUE(folder.contains(QChar::ReplacementCharacter)) << folder.toStdString();
    EXPECT_EQ(footer(), "5 items selected / 200 MB");
}

TEST_F(ItemListTest, ignoresInvalidRows) {
    surveyFor(Audience::developer);
    for (const int row : {-1, 5, 100}) {
        list().toggle(row);
        list().setOpen(row, true);
        list().press(row);
        EXPECT_FALSE(list().data(list().index(row), ItemList::nameRole).isValid());
    }
    EXPECT_EQ(list().rowCount(), 5);
    EXPECT_EQ(footer(), "4 items selected / 110 MB");
    list().setOpen(0, true);
    list().setOpen(1, true);  // an item, not a category
    EXPECT_EQ(list().rowCount(), 6);
    EXPECT_EQ(list().rowCount(list().index(0)), 0);
}

TEST_F(ItemListTest, pressTogglesFoldOfCategoryAndSelectionOfItem) {
    surveyFor(Audience::developer);
    list().press(0);
    EXPECT_EQ(list().rowCount(), 6);
    EXPECT_EQ(footer(), "4 items selected / 110 MB");
    const bool chosen = list().data(list().index(1), ItemList::chosenRole).toBool();
    list().press(1);
    EXPECT_NE(list().data(list().index(1), ItemList::chosenRole).toBool(), chosen);
    EXPECT_EQ(list().rowCount(), 6);
    list().press(0);
    EXPECT_EQ(list().rowCount(), 5);
}

}  // namespace zelk
