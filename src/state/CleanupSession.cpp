// SPDX-License-Identifier: MIT
#include "state/CleanupSession.h"

#include <algorithm>
#include <memory>
#include <set>
#include <string_view>
#include <utility>

#include "reclaim/Cleaner.h"
#include "scan/FoldersAt.h"
#include "state/ReleaseElsewhere.h"

namespace zelk {

namespace {

/// Folders on their way to the Trash. Shared by the task that moves them and the closures that report to the main
/// thread. `folders` is filled before the task begins; the rest belongs to the main thread.
struct FoldersToTrash {
    struct Folder {
        NodeRef node;
        const FSNode* top;  ///< of its tree, which the node keeps though another survey may replace it meanwhile
        ItemPath item;
    };
    struct OtherTree {
        NodeRef top;
        std::set<std::string> trashedPaths;
    };

    std::vector<Folder> folders;
    CleanupSession::Folders trashed;
    std::vector<RemovalUndo::Item> restorable;  ///< of the trashed folders
    std::vector<OtherTree> otherTrees;          ///< trees that contain the trashed folders too
    CleanupSession::Folders others;             ///< the folders at those paths in the other trees

    /// Leaves out what has no path of its own: the top of a tree, and "/".
    void add(const NodeRef& node) {
        const FSNode* top = node.get();
        std::string root(top->name());
        while (const FSNode* parent = top->parent()) {
            if (!parent->name().empty()) root = parent->name();
            top = parent;
        }
        if (const std::optional<ItemPath> item = ItemPath::below(root, node->fullPath()))
            folders.push_back({node, top, *item});
    }
    void noteInOtherTree(const NodeRef& tree, const std::string& path) {
        const auto isTree = [&](const OtherTree& other) { return other.top == tree; };
        auto at = std::find_if(otherTrees.begin(), otherTrees.end(), isTree);
        if (at == otherTrees.end()) at = otherTrees.insert(at, {tree, {}});
        at->trashedPaths.insert(path);
    }
};

}  // namespace

CleanupSession::CleanupSession(const Platform& platform, SurveyResults& results, RemovalsModel& removals,
                               RemovalUndo& undo, MainThreadQueue::Sender mainThread)
    : platform_(platform), results_(results), removals_(removals), undo_(undo), mainThread_(std::move(mainThread)) {}

void CleanupSession::clean(std::vector<Reclaimable> items, std::function<void()> done) {
    const std::shared_ptr<Removal> removal = removals_.begin(items.size());
    Cleaner::cleanAll(
        std::move(items), false, platform_,
        [mainThread = mainThread_, done = std::move(done)](const auto&) { mainThread.post(done); }, removal);
}

void CleanupSession::trashFolders(const Folders& folders, std::function<void(const Folders&)> done) {
    const auto moving = std::make_shared<FoldersToTrash>();
    for (const NodeRef& folder : folders) moving->add(folder);
    if (moving->folders.empty()) {
        if (done) mainThread_.post([done = std::move(done)] { done({}); });
        return;
    }
    auto work = [this, mainThread = mainThread_, &trash = platform_.trash, moving, done = std::move(done),
                 removal = removals_.begin(moving->folders.size())]() mutable {
        for (const FoldersToTrash::Folder& folder : moving->folders) {
            if (!removal->mayBegin()) {
                removal->noteSkipped();
                continue;
            }
            const TrashResult result = trash.trash(folder.item);
            removal->noteDone();
            if (result.failure) continue;
            mainThread.post([this, moving, &folder, trashed = result.item] {
                const NodeRef node = folder.node;
                const std::string path = node->fullPath();
                results_.noteTrashedFolder(path);
                for (const NodeRef& tree : results_.trees())
                    if (!(tree == folder.top)) moving->noteInOtherTree(tree, path);
                moving->trashed.push_back(node);
                if (trashed) moving->restorable.push_back({*trashed, results_.restorerOf(node)});
                results_.remove(*node);  // last: a handler with an event loop may run the final closure below
            });
        }
        mainThread.post([this, moving, done = std::move(done)] {
            // A tree is searched once for all paths: each search costs as much as the levels it passes.
            for (const FoldersToTrash::OtherTree& tree : moving->otherTrees) {
                const Folders found = foldersAt(*tree.top, tree.trashedPaths);
                moving->others.insert(moving->others.end(), found.begin(), found.end());
            }
            for (const NodeRef& folder : moving->others) results_.remove(*folder);
            undo_.offer(RemovalUndo::Source::folders, moving->trashed.size(), std::move(moving->restorable));
            if (done) done(moving->trashed);
            releaseElsewhere(platform_.tasks, std::exchange(*moving, FoldersToTrash()));
        });
    };
    platform_.tasks.run(TaskPriority::userInitiated, std::move(work));
}

void CleanupSession::trashLargeFile(const std::string& path) {
    const std::optional<ItemPath> item = itemBelowRoot(path);
    if (!item) return;
    auto work = [this, mainThread = mainThread_, &trash = platform_.trash, item = *item, path,
                 removal = removals_.begin(1)] {
        if (!removal->mayBegin()) return removal->noteSkipped();
        const TrashResult result = trash.trash(item);
        removal->noteDone();
        if (result.failure) return;
        mainThread.post([this, path, trashed = result.item] {
            std::vector<RemovalUndo::Item> restorable;
            if (trashed) restorable.push_back({*trashed, results_.restorerOfLargeFile(path)});
            results_.dropLargeFile(path);
            undo_.offer(RemovalUndo::Source::largeFile, 1, std::move(restorable));
        });
    };
    platform_.tasks.run(TaskPriority::userInitiated, std::move(work));
}

/// Starts from the nearest scan root above `path`, as the walk did; absent if the last survey has none.
std::optional<ItemPath> CleanupSession::itemBelowRoot(const std::string& path) const {
    if (!results_.root()) return std::nullopt;
    std::string_view nearest;
    for (const FSNode& root : results_.root()->children()) {
        const std::optional<std::string_view> rest = behindRoot(root.name(), path);
        if (rest && !rest->empty() && root.name().size() > nearest.size()) nearest = root.name();
    }
    return nearest.empty() ? std::nullopt : ItemPath::below(nearest, path);
}

}  // namespace zelk
