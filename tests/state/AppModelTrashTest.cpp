// SPDX-License-Identifier: MIT
// The figure of the Trash: out of the tree where a survey passed it, measured where not.
#include "AppModelFixture.h"

namespace zelk {
namespace {

class AppModelTrashTest : public AppModelFixture {
protected:
    /// Whether the measure of the Trash was asked for.
    bool wasMeasured() const { return !machine.files.pathsOf("list").empty(); }
};

using Strings = std::vector<std::string>;

TEST_F(AppModelTrashTest, isReadFromTheTreeWhenTheHomeIsARoot) {
    fillHome();
    machine.trash.put("not what the tree says", 1);
    survey();
    EXPECT_EQ(model().trashBytes(), 7'000'000);
    EXPECT_TRUE(model().trashAccessible());
    EXPECT_FALSE(model().trashLoading());
    EXPECT_FALSE(wasMeasured());
}

TEST_F(AppModelTrashTest, isReadFromTheTreeWhenItIsARootItself) {
    fillHome();
    model().setScanRoots({home + "/projects", home + "/.Trash"});
    survey();
    EXPECT_EQ(model().trashBytes(), 7'000'000);
    EXPECT_FALSE(wasMeasured());
}

TEST_F(AppModelTrashTest, isMeasuredWhenARootLiesHigherUp) {
    fillHome();
    machine.trash.put("a", 11);
    model().setScanRoots({"/home"});
    survey();
    EXPECT_EQ(model().trashBytes(), 11);
    EXPECT_TRUE(wasMeasured());
}

TEST_F(AppModelTrashTest, isMeasuredWhenTheSurveyDoesNotContainIt) {
    machine.directories.file("/data/.Trash/file", 5'000);
    machine.trash.put("a", 11);
    machine.trash.put(".hidden", 30);
    model().setScanRoots({"/data"});
    survey();
    EXPECT_EQ(model().trashBytes(), 41);
}

TEST_F(AppModelTrashTest, isReadFromTheTreeEvenIfItWasInaccessible) {
    machine.trash.setAccessible(false);
    model().refreshTrash();
    runUntil([&] { return !model().trashLoading(); });
    ASSERT_FALSE(model().trashAccessible());
    fillHome();
    survey();
    EXPECT_TRUE(model().trashAccessible());
    EXPECT_EQ(model().trashBytes(), 7'000'000);
}

TEST_F(AppModelTrashTest, theSurveyDoesNotWaitForTheMeasure) {
    machine.directories.directory("/data");
    model().setScanRoots({"/data"});
    machine.tasks.hold();
    model().startScan();
    runUntil([&] { return static_cast<bool>(model().root()); });
    classifyUpToTheRecord();
    machine.tasks.runNext();
    runUntil([&] { return model().scanPhase() == Phase::finished; });
    EXPECT_TRUE(model().trashLoading());
    machine.tasks.release();
    runUntil([&] { return !model().trashLoading(); });
}

TEST_F(AppModelTrashTest, loadsVisiblyWithoutAFigure) {
    machine.trash.put("a", 11);
    machine.tasks.hold();
    model().refreshTrash();
    EXPECT_TRUE(model().trashLoading());
    EXPECT_EQ(machine.tasks.waiting(), std::vector{TaskPriority::utility});
    machine.tasks.release();
    runUntil([&] { return !model().trashLoading(); });
    EXPECT_EQ(model().trashBytes(), 11);
    EXPECT_EQ(takeSignals(), (Strings{"trashLoading", "trashBytes", "trashLoading"}));
}

TEST_F(AppModelTrashTest, isReplacedInSilenceWithAFigure) {
    machine.trash.put("a", 11);
    model().refreshTrash();
    runUntil([&] { return model().trashBytes() == 11; });
    takeSignals();
    machine.trash.put("b", 9);
    model().refreshTrash();
    EXPECT_FALSE(model().trashLoading());
    runUntil([&] { return model().trashBytes() != 11; });
    EXPECT_EQ(model().trashBytes(), 20);
    EXPECT_EQ(takeSignals(), Strings{"trashBytes"});
}

TEST_F(AppModelTrashTest, inaccessibleKeepsTheLastFigure) {
    machine.trash.put("a", 11);
    model().refreshTrash();
    runUntil([&] { return model().trashBytes() == 11; });
    machine.trash.setAccessible(false);
    model().refreshTrash();
    runUntil([&] { return !model().trashAccessible(); });
    EXPECT_EQ(model().trashBytes(), 11);
    EXPECT_FALSE(model().trashLoading());

    machine.trash.setAccessible(true);
    model().refreshTrash();
    runUntil([&] { return model().trashAccessible(); });
    EXPECT_EQ(model().trashBytes(), 11);
}

TEST_F(AppModelTrashTest, inaccessibleWithoutAFigureEndsTheLoading) {
    machine.trash.setAccessible(false);
    model().refreshTrash();
    EXPECT_TRUE(model().trashLoading());
    runUntil([&] { return !model().trashLoading(); });
    EXPECT_FALSE(model().trashAccessible());
    EXPECT_EQ(model().trashBytes(), 0);
}

TEST_F(AppModelTrashTest, anEmptyTrashIsZeroAndAccessible) {
    machine.trash.put("a", 11);
    model().refreshTrash();
    runUntil([&] { return model().trashBytes() == 11; });
    machine.files.erase(machine.trash.path + "/a");
    model().refreshTrash();
    runUntil([&] { return model().trashBytes() == 0; });
    EXPECT_TRUE(model().trashAccessible());
}

TEST_F(AppModelTrashTest, anEarlierMeasureDoesNotOverwriteALaterOne) {
    machine.trash.put("a", 11);
    machine.tasks.hold();
    model().refreshTrash();
    model().refreshTrash();
    machine.tasks.runAt(1);
    runUntil([&] { return model().trashBytes() == 11; });
    machine.trash.put("b", 9);
    machine.tasks.runAt(0);
    runWhatIsThere();
    EXPECT_EQ(model().trashBytes(), 11);
    EXPECT_FALSE(model().trashLoading());
}

TEST_F(AppModelTrashTest, theModelMayGoWhileTheTrashIsMeasured) {
    machine.tasks.hold();
    model().refreshTrash();
    destroyModel();
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_TRUE(wasMeasured());
}

}  // namespace
}  // namespace zelk
