// SPDX-License-Identifier: MIT
// What the model itself takes away, without the review that every other cleaning passes.
#include <algorithm>
#include <set>
#include <string>
#include <utility>

#include "reclaim/Cleaner.h"
#include "scan/FoldersAt.h"
#include "state/AppModel.h"
#include "state/ScanTask.h"

namespace zelk {

void AppModel::cleanSafeCaches() {
    std::vector<Reclaimable> items = safeItems();
    if (items.empty()) return;
    const std::shared_ptr<Removal> removal = removals_.begin(items.size());
    Cleaner::cleanAll(
        std::move(items), false, platform_,
        [this, sender = calls_.sender()](const auto&) { sender.post([this] { scanAnew(); }); }, removal);
}

namespace {

/// What is on its way to the Trash. Each node's place is asked for again when it has gone, and by then another survey
/// may have taken its tree's place: the top is what keeps the way to it.
struct Leaving {
    struct Item {
        NodeRef node;
        NodeRef top;
        ItemPath place;
    };
    struct Tree {
        NodeRef top;
        std::set<std::string> paths;
    };

    std::vector<Item> items;
    // Main thread.
    std::vector<NodeRef> gone;
    std::vector<Tree> otherTrees;  // that name what has gone as well, and where
    std::vector<NodeRef> others;   // what stood there

    void add(const NodeRef& node) {
        FSNode* top = node.get();
        std::string root(top->name());
        while (FSNode* parent = top->parent()) {
            if (!parent->name().empty()) root = parent->name();
            top = parent;
        }
        const std::optional<ItemPath> item = ItemPath::below(root, node->fullPath());
        if (!item) return;
        items.push_back({node, NodeRef(top), *item});
    }
    void noteIn(const NodeRef& tree, const std::string& path) {
        const auto isIt = [&](const Tree& other) { return other.top == tree; };
        auto at = std::find_if(otherTrees.begin(), otherTrees.end(), isIt);
        if (at == otherTrees.end()) at = otherTrees.insert(at, {tree, {}});
        at->paths.insert(path);
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
    auto work = [this, sender = calls_.sender(), &trash = platform_.trash, leaving, done = std::move(done),
                 removal = removals_.begin(leaving->items.size())]() mutable {
        for (const Leaving::Item& item : leaving->items) {
            if (!removal->mayBegin()) {
                removal->noteSkipped();
                continue;
            }
            const bool stays = trash.trash(item.place).has_value();
            removal->noteDone();
            if (stays) continue;
            sender.post([this, leaving, &item] {
                const std::string path = item.node->fullPath();
                if (ScanTask* walk = walkUnderWay()) walk->trashedFolders.insert(path);
                for (const NodeRef& tree : treesAtHand())
                    if (!(tree == item.top)) leaving->noteIn(tree, path);
                removeFromTree(*item.node);
                leaving->gone.push_back(item.node);
            });
        }
        sender.post([this, leaving, done = std::move(done)] {
            for (const Leaving::Tree& tree : leaving->otherTrees) {
                const std::vector<NodeRef> others = foldersAt(*tree.top, tree.paths);
                leaving->others.insert(leaving->others.end(), others.begin(), others.end());
            }
            for (const NodeRef& node : leaving->others) removeFromTree(*node);
            if (done) done(leaving->gone);
            platform_.tasks.run(TaskPriority::utility, [leaving] { *leaving = Leaving(); });
        });
    };
    platform_.tasks.run(TaskPriority::userInitiated, std::move(work));
}

/// The trees that results are read from, or will be again after a cancel.
AppModel::ScanTask* AppModel::walkUnderWay() const {
    return scanPhase_ == ScanPhase::scanning ? scanTask_.get() : nullptr;
}

std::vector<NodeRef> AppModel::treesAtHand() const {
    std::vector<NodeRef> trees;
    if (root_) trees.push_back(root_);
    if (scanTask_ != nullptr && scanTask_->before && scanTask_->before->root) trees.push_back(scanTask_->before->root);
    return trees;
}

/// Of the roots of the survey at hand the one nearest above `path`, from which the walk came to it; empty if none is.
std::string_view AppModel::rootAbove(std::string_view path) const {
    std::string_view nearest;
    if (!root_) return nearest;
    for (const NodeRef& root : root_->children) {
        const std::optional<std::string_view> rest = behindRoot(root->name(), path);
        if (rest && !rest->empty() && root->name().size() > nearest.size()) nearest = root->name();
    }
    return nearest;
}

void AppModel::trashLargeFile(const std::string& path) {
    const std::string_view root = rootAbove(path);
    const std::optional<ItemPath> item = root.empty() ? std::nullopt : ItemPath::below(root, path);
    if (!item) return;
    auto work = [this, sender = calls_.sender(), &trash = platform_.trash, item = *item, path,
                 removal = removals_.begin(1)] {
        if (!removal->mayBegin()) return removal->noteSkipped();
        const bool stays = trash.trash(item).has_value();
        removal->noteDone();
        if (stays) return;
        sender.post([this, path] { dropLargeFile(path); });
    };
    platform_.tasks.run(TaskPriority::userInitiated, std::move(work));
}

void AppModel::dropLargeFile(const std::string& path) {
    // A walk that is not over may have come by before the file went.
    if (ScanTask* walk = walkUnderWay()) walk->trashedFiles.insert(path);
    const auto isIt = [&](const LargeFile& file) { return file.path == path; };
    if (std::erase_if(insights_.topFiles, isIt) != 0) emit insightsChanged();
}

}  // namespace zelk
