// SPDX-License-Identifier: MIT
#include "reclaim/Cleaner.h"

#include <memory>
#include <mutex>
#include <utility>

#include "platform/Translation.h"
#include "platform/Utf8.h"

namespace zelk {

namespace {

/// Collects the results of one cleaning from its tasks.
class ResultCollector {
public:
    ResultCollector(std::size_t expected, std::function<void(std::vector<Cleaner::Result>)> done,
                    std::shared_ptr<Removal> removal)
        : expected_(expected), done_(std::move(done)), removal_(std::move(removal)) {
        results_.reserve(expected);
    }

    /// Called once per item, on any thread. The last call delivers the results.
    void clean(const Reclaimable& item, bool hardDelete, const Platform& platform) {
        const bool skipped = removal_ != nullptr && !removal_->mayBegin();
        add(skipped ? Cleaner::Result{item.id, item, Cleaner::Skipped{"The clean-up was stopped before its turn."}}
                    : Cleaner::cleanOne(item, hardDelete, platform));
        // After the result, so that every result is delivered before the removal ends.
        if (removal_ != nullptr) skipped ? removal_->noteSkipped() : removal_->noteDone();
    }

private:
    void add(Cleaner::Result result) {
        {
            const std::lock_guard lock(mutex_);
            results_.push_back(std::move(result));
            if (results_.size() < expected_) return;
        }
        done_(std::move(results_));
    }

    const std::size_t expected_;
    const std::function<void(std::vector<Cleaner::Result>)> done_;
    const std::shared_ptr<Removal> removal_;
    std::mutex mutex_;
    std::vector<Cleaner::Result> results_;
};

Cleaner::Status remove(const Reclaimable& reclaimable, bool hardDelete, const Platform& platform) {
    const std::string& path = reclaimable.path;
    const std::optional<ItemPath> item = ItemPath::below(path.substr(0, reclaimable.rootLength), path);
    if (!item)
        return Cleaner::Failed{
            filled(translated("Cleaner", "“%1” is not the path of anything that can be removed."), {path})};
    Failure failure = hardDelete ? platform.files.remove(*item) : platform.trash.trash(*item).failure;
    if (failure) return Cleaner::Failed{std::move(*failure)};
    return Cleaner::Trashed{};
}

Cleaner::Status statusOf(ChildOutcome outcome) {
    if (outcome.launchFailure) return Cleaner::Failed{std::move(*outcome.launchFailure)};
    std::string output = isUtf8(outcome.output) ? std::move(outcome.output) : std::string();
    if (outcome.exitStatus != 0) return Cleaner::Failed{"exit " + std::to_string(outcome.exitStatus) + ": " + output};
    return Cleaner::RanCommand{std::move(output)};
}

}  // namespace

void Cleaner::cleanAll(std::vector<Reclaimable> items, bool hardDelete, const Platform& platform,
                       std::function<void(std::vector<Result>)> done, std::shared_ptr<Removal> removal) {
    if (items.empty()) return done({});
    // Another task starts the tasks: if the machine has no more threads, an item is cleaned on the thread that starts
    // it. Thousands of tasks must not starve the window, so they are less urgent than the cleaning as a whole. A tool
    // may stall forever, so it gets its own thread.
    auto start = [items = std::move(items), hardDelete, platform, done = std::move(done),
                  removal = std::move(removal)]() mutable {
        const auto collector = std::make_shared<ResultCollector>(items.size(), std::move(done), std::move(removal));
        for (Reclaimable& item : items) {
            const bool mayStall = item.method.kind == ReclaimMethod::Kind::command;
            auto task = [collector, item = std::move(item), hardDelete, platform] {
                collector->clean(item, hardDelete, platform);
            };
            if (mayStall)
                platform.tasks.runApart(TaskPriority::utility, std::move(task));
            else
                platform.tasks.run(TaskPriority::utility, std::move(task));
        }
    };
    platform.tasks.run(TaskPriority::userInitiated, std::move(start));
}

Cleaner::Result Cleaner::cleanOne(const Reclaimable& item, bool hardDelete, const Platform& platform) {
    if (item.method.kind == ReclaimMethod::Kind::command)
        return runTool(item.method.tool, item.method.args, item, platform.processes);
    return {item.id, item, remove(item, hardDelete, platform)};
}

Cleaner::Result Cleaner::runTool(const std::string& tool, const std::vector<std::string>& args, const Reclaimable& item,
                                 ChildProcess& processes) {
    return {item.id, item, statusOf(processes.run(tool, args))};
}

std::optional<std::string> Cleaner::runningConflict(const Reclaimable& item, Workspace& workspace) {
    const auto category = reclaimCategoryByID().find(item.categoryID);
    if (category == reclaimCategoryByID().end() || !category->second->appScoped) return std::nullopt;
    if (!workspace.knowsRunningApplications()) return unknownApplication;
    for (std::string& name : workspace.runningApplications())
        if (!name.empty() && item.path.find("/" + name + "/") != std::string::npos) return std::move(name);
    return std::nullopt;
}

std::uint64_t Cleaner::allocatedSize(FileManager& files, const std::string& path) {
    const std::optional<FileProperties> properties = files.properties(path);
    if (!properties) return 0;
    return properties->isDirectory ? files.allocatedSizeBelow(path) : properties->allocatedSize;
}

std::optional<std::uint64_t> Cleaner::measureTrash(FileManager& files, Trash& trash) {
    const std::optional<std::vector<std::string>> entries = trash.list();
    if (!entries) return std::nullopt;
    std::uint64_t bytes = 0;
    for (const std::string& entry : *entries) bytes += allocatedSize(files, entry);
    return bytes;
}

std::size_t Cleaner::emptyTrashContents(Trash& trash) {
    return trash.empty();
}

void Cleaner::emptyTrash(const Platform& platform, std::function<void()> done, std::shared_ptr<Removal> removal) {
    platform.tasks.run(TaskPriority::userInitiated,
                       [&trash = platform.trash, done = std::move(done), removal = std::move(removal)] {
                           if (removal == nullptr || removal->mayBegin()) emptyTrashContents(trash);
                           if (removal != nullptr) removal->noteDone();
                           done();
                       });
}

}  // namespace zelk
