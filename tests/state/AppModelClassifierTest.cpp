// SPDX-License-Identifier: MIT
// The model while the classifier runs on a real thread.
#include <future>

#include "AppModelFixture.h"
#include "platform/posix/PosixTasks.h"

namespace zelk {
namespace {

/// Holds the classifier in the middle of its work.
class AppModelClassifierTest : public AppModelFixture {
protected:
    void surveyUntilClassifierWorks() {
        machine.directories.directory(home + "/rust/target");
        machine.files.failing = [this](const fakes::FakeFileManager::Call& call) {
            if (call != fakes::FakeFileManager::Call{"exists", home + "/rust/Cargo.toml"}) return false;
            working_.set_value();
            resume_.get_future().wait();
            return false;
        };
        Platform platform = machine.platform();
        model_ = std::make_unique<AppModel>(Platform{
            platform.clock, platform.directories, platform.files, platform.contents, platform.trash, platform.vitals,
            platform.locations, tasks_, platform.processes, platform.workspace, platform.system});
        model_->startScan();
        runUntil([&] { return static_cast<bool>(model_->root()); });
        working_.get_future().wait();
    }
    void resumeClassifier() {
        resume_.set_value();
        machine.waitForThreads();
        runWhatIsThere();
    }

private:
    std::promise<void> working_;
    std::promise<void> resume_;
    ThreadTasks tasks_;  // used by the model to its end

protected:
    std::unique_ptr<AppModel> model_;
};

TEST_F(AppModelClassifierTest, modelMayBeDestroyedMeanwhile) {
    surveyUntilClassifierWorks();
    model_.reset();
    resumeClassifier();
    EXPECT_FALSE(historyFile());
}

TEST_F(AppModelClassifierTest, cancelDoesNotWaitForClassifier) {
    surveyUntilClassifierWorks();
    model_->cancelScan();
    EXPECT_EQ(model_->scanPhase(), Phase::idle);
    EXPECT_FALSE(model_->root());
    EXPECT_FALSE(model_->stats());
    resumeClassifier();
    EXPECT_EQ(model_->scanPhase(), Phase::idle);
    EXPECT_TRUE(model_->reclaimables().empty());
    EXPECT_FALSE(historyFile());
}

TEST_F(AppModelClassifierTest, removalIsDeferredUntilClassifierEnds) {
    machine.directories.file(home + "/films/one.mov", 9'000);
    surveyUntilClassifierWorks();
    const NodeRef films = folderAt(model_->root(), home + "/films");
    model_->removeFromTree(*films);
    EXPECT_EQ(model_->root()->size, 9'000);
    resumeClassifier();
    runUntil([&] { return model_->scanPhase() == Phase::finished; });
    EXPECT_EQ(model_->root()->size, 0);
}

}  // namespace
}  // namespace zelk
