// SPDX-License-Identifier: MIT
#include "state/AdminRunner.h"

#include <gmock/gmock.h>

#include <memory>
#include <thread>

#include "fakes/EventLoop.h"
#include "fakes/FakePlatform.h"
#include "state/AppModel.h"

namespace zelk {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// Tells which tasks have a thread of their own.
class ApartTasks : public BackgroundTasks {
public:
    int shared = 0;
    int apart = 0;

    void run(TaskPriority, std::function<void()> task) override {
        ++shared;
        std::thread(std::move(task)).join();
    }
    void runApart(TaskPriority, std::function<void()> task) override {
        ++apart;
        std::thread(std::move(task)).join();
    }
};

class AdminRunnerTest : public testing::Test {
protected:
    using Call = fakes::FakeProcesses::Call;

    /// Created at the first call: fill the machine before.
    AdminRunner& runner() {
        if (!runner_) runner_ = std::make_unique<AdminRunner>(machine.platform(), queue->sender());
        return *runner_;
    }
    AdminRunner::Done noted() {
        return [this](const std::string& text) {
            texts.push_back(text);
            threads.push_back(std::this_thread::get_id());
        };
    }
    void answer(ChildOutcome outcome) {
        machine.processes.outcome = [=](const Call&) { return outcome; };
    }

    fakes::FakePlatform machine;
    std::unique_ptr<MainThreadQueue> queue = std::make_unique<MainThreadQueue>();
    std::vector<std::string> texts;
    std::vector<std::thread::id> threads;

private:
    std::unique_ptr<AdminRunner> runner_;
};

TEST_F(AdminRunnerTest, resumesOnceOnTheMainThread) {
    answer({std::nullopt, 0, "out\n"});
    runner().run("line", noted());
    EXPECT_THAT(texts, IsEmpty()) << "before the event loop has run";
    runUntil([&] { return !texts.empty(); });
    runner().runAdmin("line", noted());
    runUntil([&] { return texts.size() == 2; });
    runWhatIsThere();
    EXPECT_THAT(texts, ElementsAre("out\n", "out\n"));
    EXPECT_THAT(threads, ElementsAre(std::this_thread::get_id(), std::this_thread::get_id()));
}

TEST_F(AdminRunnerTest, runsTheChildElsewhere) {
    std::vector<std::thread::id> where;
    machine.processes.outcome = [&](const Call&) {
        where.push_back(std::this_thread::get_id());
        return ChildOutcome{};
    };
    runner().run("line", noted());
    runner().runAdmin("line", noted());
    runUntil([&] { return texts.size() == 2; });
    for (const std::thread::id thread : where) EXPECT_NE(thread, std::this_thread::get_id());
    EXPECT_THAT(where, SizeIs(2));
}

TEST_F(AdminRunnerTest, theTwoOperationsTellFailuresDifferently) {
    answer({std::nullopt, 1, "why\n"});
    runner().run("line", noted());
    runner().runAdmin("line", noted());
    runUntil([&] { return texts.size() == 2; });
    EXPECT_THAT(texts, ElementsAre("cancelled", "cancelled or failed: why\n"));
}

TEST_F(AdminRunnerTest, theTwoOperationsTellSilenceDifferently) {
    runner().run("line", noted());
    runner().runAdmin("line", noted());
    runUntil([&] { return texts.size() == 2; });
    EXPECT_THAT(texts, ElementsAre("done", ""));
}

TEST_F(AdminRunnerTest, handsTheLineOver) {
    runner().run("first", noted());
    runner().runAdmin("second", noted());
    runUntil([&] { return texts.size() == 2; });
    const auto script = [](const std::string& line) {
        return Call{"/usr/bin/osascript", {"-e", "do shell script \"" + line + "\" with administrator privileges"}, {}};
    };
    EXPECT_THAT(machine.processes.calls(), ElementsAre(script("first"), script("second")));
}

TEST_F(AdminRunnerTest, callsInFlightAreChildrenOfTheirOwn) {
    machine.tasks.hold();
    machine.processes.outcome = [](const Call& call) {
        return ChildOutcome{std::nullopt, 0, call.arguments.back().find("first") != std::string::npos ? "1" : "2"};
    };
    runner().run("first", noted());
    runner().runAdmin("second", noted());
    EXPECT_THAT(machine.tasks.waiting(), ElementsAre(TaskPriority::userInitiated, TaskPriority::userInitiated))
        << "neither waits for the other";
    machine.tasks.runAt(1);
    runUntil([&] { return !texts.empty(); });
    EXPECT_THAT(texts, ElementsAre("2"));
    machine.tasks.runAt(0);
    runUntil([&] { return texts.size() == 2; });
    EXPECT_THAT(texts, ElementsAre("2", "1"));
    EXPECT_THAT(machine.processes.calls(), SizeIs(2));
}

TEST_F(AdminRunnerTest, openQuestionBlocksNoOtherTask) {
    ApartTasks tasks;
    const Platform all = machine.platform();
    AdminRunner apart({all.clock, all.directories, all.files, all.contents, all.trash, all.vitals, all.locations, tasks,
                       all.processes, all.workspace, all.system},
                      queue->sender());
    apart.run("line", noted());
    apart.runAdmin("line", noted());
    runUntil([&] { return texts.size() == 2; });
    EXPECT_EQ(tasks.apart, 2);
    EXPECT_EQ(tasks.shared, 0);
}

TEST_F(AdminRunnerTest, callerIsNotResumedAfterTheEnd) {
    machine.tasks.hold();
    runner().run("line", noted());
    runner().runAdmin("line", noted());
    machine.tasks.runNext();  // ends before, and is read after
    queue.reset();
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_THAT(machine.processes.calls(), SizeIs(2));
    EXPECT_THAT(texts, IsEmpty());
}

TEST_F(AdminRunnerTest, whatTheCallerHandedOverIsLetGo) {
    const auto held = std::make_shared<int>(0);
    runner().run("line", [held, note = noted()](const std::string& text) { note(text); });
    runUntil([&] { return !texts.empty(); });
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(AdminRunnerTest, modelOwnsOneThatEndsWithIt) {
    auto model = std::make_unique<AppModel>(machine.platform());
    answer({std::nullopt, 0, "out"});
    model->admin().run("line", noted());
    runUntil([&] { return !texts.empty(); });
    machine.tasks.hold();
    model->admin().runAdmin("line", noted());
    model.reset();
    machine.tasks.release();
    runWhatIsThere();
    EXPECT_THAT(texts, ElementsAre("out"));
}

}  // namespace
}  // namespace zelk
