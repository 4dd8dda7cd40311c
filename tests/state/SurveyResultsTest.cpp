// SPDX-License-Identifier: MIT
#include "state/SurveyResults.h"

#include <gmock/gmock.h>

#include "fakes/FakePlatform.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Field = SurveyResults::Field;

class SurveyResultsTest : public testing::Test {
protected:
    /// A tree "/home" of 10 bytes, of which 4 are in "cache".
    static NodeRef makeTree() {
        const NodeRef top = FSNode::make("", 0);
        FSNode& root = top->append("/home", 0);
        root.append("cache", 0).size = 4;
        top->size = root.size = 10;
        return top;
    }
    static FSNode& cacheOf(const NodeRef& top) { return top->children().front().children().front(); }

    /// A survey up to its items, with one item and one large file in "cache".
    void surveyUpToItems() {
        results.begin("/home");
        ScanInsights insights;
        insights.topFiles = {{"/home/cache/film.mov", 3}};
        results.setInsights(insights);
        results.setTree(makeTree(), {});
        Reclaimable item;
        item.id = item.path = "/home/cache";
        results.setReclaimables({item});
        changes.clear();
    }

    fakes::FakePlatform machine;
    std::vector<Field> changes;
    std::function<void()> atChange = [] {};
    SurveyResults results{machine.tasks, [this](Field field) {
                              changes.push_back(field);
                              atChange();
                          }};
};

TEST_F(SurveyResultsTest, beginWritesEveryFieldBeforeItTells) {
    surveyUpToItems();
    results.keep();
    atChange = [&] {
        EXPECT_EQ(results.progress().currentPath, "/elsewhere");
        EXPECT_TRUE(results.reclaimables().empty());
        EXPECT_TRUE(results.insights().topFiles.empty());
    };
    results.begin("/elsewhere");
    EXPECT_THAT(changes, ElementsAre(Field::progress, Field::reclaimables, Field::insights));
}

TEST_F(SurveyResultsTest, withdrawWritesEveryFieldBeforeItTells) {
    surveyUpToItems();
    atChange = [&] {
        EXPECT_FALSE(results.root());
        EXPECT_FALSE(results.stats());
        EXPECT_TRUE(results.reclaimables().empty());
        EXPECT_TRUE(results.insights().topFiles.empty());
    };
    results.withdraw();
    EXPECT_THAT(changes, ElementsAre(Field::tree, Field::reclaimables, Field::insights));
}

TEST_F(SurveyResultsTest, removalTellsEachFieldOnce) {
    surveyUpToItems();
    results.remove(cacheOf(results.root()));
    EXPECT_EQ(results.root()->size, 6);
    EXPECT_THAT(changes, ElementsAre(Field::tree, Field::reclaimables, Field::insights));
}

TEST_F(SurveyResultsTest, removalDuringReadingIsDeferred) {
    surveyUpToItems();
    results.beginReading();
    results.remove(cacheOf(results.root()));
    EXPECT_THAT(changes, IsEmpty());
    EXPECT_EQ(results.root()->size, 10);
    results.endReading();
    EXPECT_EQ(results.root()->size, 6);
    EXPECT_THAT(changes, ElementsAre(Field::tree, Field::reclaimables, Field::insights));
}

TEST_F(SurveyResultsTest, folderTrashedDuringSurveyIsRemovedWhenReadingEnds) {
    surveyUpToItems();
    results.noteTrashedFolder("/home/cache");
    results.beginReading();
    results.keep();
    EXPECT_EQ(results.root()->size, 6);
    EXPECT_TRUE(results.reclaimables().empty());
}

TEST_F(SurveyResultsTest, folderTrashedBeforeSurveyIsForgotten) {
    results.noteTrashedFolder("/home/cache");
    surveyUpToItems();
    results.keep();
    EXPECT_EQ(results.root()->size, 10);
    results.noteTrashedFolder("/home/cache");
    surveyUpToItems();
    results.noteTrashedFolder("/home/cache");
    results.withdraw();
    surveyUpToItems();
    results.endReading();
    EXPECT_EQ(results.root()->size, 10);
}

TEST_F(SurveyResultsTest, withdrawKeepsTreeThatWasReadUntouched) {
    surveyUpToItems();
    const NodeRef withdrawn = results.root();
    results.beginReading();
    results.remove(cacheOf(withdrawn));
    results.withdraw();
    EXPECT_EQ(withdrawn->size, 10);
    results.remove(cacheOf(withdrawn));
    EXPECT_EQ(withdrawn->size, 10);
}

TEST_F(SurveyResultsTest, restoringTwiceAddsTheFolderOnce) {
    surveyUpToItems();
    results.keep();
    const NodeRef cache(&cacheOf(results.root()));
    const SurveyResults::Restorer restore = results.restorerOf(cache);
    EXPECT_FALSE(restore()) << "it is still there";
    results.remove(*cache);
    EXPECT_EQ(results.root()->size, 6);
    EXPECT_TRUE(restore());
    EXPECT_FALSE(restore());
    EXPECT_EQ(results.root()->size, 10);
    EXPECT_EQ(results.root()->children().front().onlyChild(), cache.get());
}

TEST_F(SurveyResultsTest, keepReleasesPreviousTree) {
    surveyUpToItems();
    results.keep();
    const NodeRef previous = results.root();
    surveyUpToItems();
    EXPECT_EQ(results.trees(), (std::vector{results.root(), previous}));
    results.keep();
    EXPECT_EQ(results.trees(), std::vector{results.root()});
}

TEST_F(SurveyResultsTest, equalValuesAreNotTold) {
    surveyUpToItems();
    results.setProgress(results.progress());
    results.setInsights(results.insights());
    results.setReclaimables(results.reclaimables());
    EXPECT_THAT(changes, IsEmpty());
}

TEST_F(SurveyResultsTest, itemsThatDifferInOneFieldAreTold) {
    surveyUpToItems();
    std::vector<Reclaimable> items = results.reclaimables();
    items.front().size = 1;
    results.setReclaimables(items);
    EXPECT_THAT(changes, ElementsAre(Field::reclaimables));
}

}  // namespace
}  // namespace zelk
