// SPDX-License-Identifier: MIT
// What the model itself takes away, without the review that every other cleaning passes.
#include <algorithm>
#include <string>
#include <utility>

#include "reclaim/Cleaner.h"
#include "state/AppModel.h"
#include "state/ScanTask.h"

namespace zelk {

void AppModel::cleanSafeCaches() {
    std::vector<Reclaimable> items = safeItems();
    if (items.empty()) return;
    Cleaner::cleanAll(std::move(items), false, platform_,
                      [this, sender = calls_.sender()](const auto&) { sender.post([this] { startScan(); }); });
}

namespace {

/// What is on its way to the Trash. Each node's place is asked for again when it has gone, and by then another survey
/// may have taken its tree's place: the tops are what keeps the way to it.
struct Leaving {
    std::vector<std::pair<NodeRef, ItemPath>> items;
    std::vector<NodeRef> tops;
    std::vector<NodeRef> gone;  // main thread

    void add(const NodeRef& node) {
        FSNode* top = node.get();
        std::string root(top->name());
        while (FSNode* parent = top->parent()) {
            if (!parent->name().empty()) root = parent->name();
            top = parent;
        }
        const std::optional<ItemPath> item = ItemPath::below(root, node->fullPath());
        if (!item) return;
        if (tops.empty() || !(tops.back() == top)) tops.emplace_back(top);
        items.emplace_back(node, *item);
    }
};

}  // namespace

void AppModel::trashAndRemove(const std::vector<NodeRef>& nodes,
                              std::function<void(const std::vector<NodeRef>&)> done) {
    const auto leaving = std::make_shared<Leaving>();
    for (const NodeRef& node : nodes) leaving->add(node);
    if (leaving->items.empty()) {
        if (done) calls_.sender().post([done = std::move(done)] { done({}); });
        return;
    }
    auto work = [this, sender = calls_.sender(), &trash = platform_.trash, leaving, done = std::move(done)]() mutable {
        for (const auto& [node, item] : leaving->items) {
            if (trash.trash(item)) continue;
            sender.post([this, leaving, gone = node] {
                removeFromTree(*gone);
                leaving->gone.push_back(gone);
            });
        }
        sender.post([this, leaving, done = std::move(done)] {
            if (done) done(leaving->gone);
            platform_.tasks.run(TaskPriority::utility, [leaving] { *leaving = Leaving(); });
        });
    };
    platform_.tasks.run(TaskPriority::userInitiated, std::move(work));
}

void AppModel::trashLargeFile(const std::string& path) {
    const std::optional<ItemPath> item = ItemPath::from(path);
    if (!item) return;
    auto work = [this, sender = calls_.sender(), &trash = platform_.trash, item = *item, path] {
        if (trash.trash(item)) return;
        sender.post([this, path] { dropLargeFile(path); });
    };
    platform_.tasks.run(TaskPriority::userInitiated, std::move(work));
}

void AppModel::dropLargeFile(const std::string& path) {
    // A walk that is not over may have come by before the file went.
    if (scanTask_ != nullptr && scanPhase_ == ScanPhase::scanning) scanTask_->trashedFiles.insert(path);
    const auto isIt = [&](const LargeFile& file) { return file.path == path; };
    if (std::erase_if(insights_.topFiles, isIt) != 0) emit insightsChanged();
}

}  // namespace zelk
