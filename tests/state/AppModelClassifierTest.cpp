// SPDX-License-Identifier: MIT
// The model while the classifier really works beside it, on a thread that nobody waits for.
#include <future>

#include "AppModelFixture.h"
#include "platform/posix/PosixTasks.h"

namespace zelk {
namespace {

/// The classifier is held in the middle of its work.
class AppModelClassifierTest : public AppModelFixture {
protected:
    void surveyIntoTheClassifier() {
        machine.directories.directory(home + "/rust/target");
        machine.files.failing = [this](const fakes::FakeFileManager::Call& call) {
            if (call != fakes::FakeFileManager::Call{"exists", home + "/rust/Cargo.toml"}) return false;
            working_.set_value();
            letGo_.get_future().wait();
            return false;
        };
        Platform platform = machine.platform();
        model_ = std::make_unique<AppModel>(Platform{platform.clock, platform.directories, platform.files,
                                                     platform.trash, platform.vitals, platform.locations, tasks_,
                                                     platform.processes, platform.workspace});
        model_->startScan();
        runUntil([&] { return static_cast<bool>(model_->root()); });
        working_.get_future().wait();
    }
    void letTheClassifierGo() {
        letGo_.set_value();
        machine.waitForThreads();
        runWhatIsThere();
    }

private:
    std::promise<void> working_;
    std::promise<void> letGo_;
    ThreadTasks tasks_;  // used by the model to its end

protected:
    std::unique_ptr<AppModel> model_;
};

TEST_F(AppModelClassifierTest, theModelMayGo) {
    surveyIntoTheClassifier();
    model_.reset();
    letTheClassifierGo();
    EXPECT_FALSE(historyFile());
}

TEST_F(AppModelClassifierTest, aCancelDoesNotWaitForIt) {
    surveyIntoTheClassifier();
    model_->cancelScan();
    EXPECT_EQ(model_->scanPhase(), Phase::idle);
    EXPECT_FALSE(model_->root());
    EXPECT_FALSE(model_->stats());
    letTheClassifierGo();
    EXPECT_EQ(model_->scanPhase(), Phase::idle);
    EXPECT_TRUE(model_->reclaimables().empty());
    EXPECT_FALSE(historyFile());
}

TEST_F(AppModelClassifierTest, aRemovalTouchesTheTreeOnlyAfterwards) {
    machine.directories.file(home + "/films/one.mov", 9'000);
    surveyIntoTheClassifier();
    const NodeRef films = folderAt(model_->root(), home + "/films");
    model_->removeFromTree(*films);
    EXPECT_EQ(model_->root()->size, 9'000);
    letTheClassifierGo();
    runUntil([&] { return model_->scanPhase() == Phase::finished; });
    EXPECT_EQ(model_->root()->size, 0);
}

}  // namespace
}  // namespace zelk
