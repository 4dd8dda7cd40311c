// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Failure.h"
#include "platform/posix/Descriptor.h"
#include "platform/posix/DirectoryLadder.h"
#include "platform/posix/RemovalPermit.h"

namespace zelk {

/// Folders that one remover leaves to another.
struct FolderShare {
    std::unique_ptr<RemovalPermit> permit;
    Descriptor parent;
    std::vector<std::string> names;  ///< in `parent`; the last one comes first
    std::size_t level = 0;           ///< the giver's; it must not leave that level before they are gone
};

class TreeRemover;

/// What the removers of one item have in common, and those who work at it beside the asking one.
class FellowRemovers {
public:
    explicit FellowRemovers(std::string item) : item_(std::move(item)) {}
    virtual ~FellowRemovers() = default;

    /// Whether somebody would take folders from a remover that has removed so many entries. Asked after every folder.
    virtual bool wantFolders(std::size_t removed) = 0;
    /// A permit for a share; null if nobody may take one now.
    virtual std::unique_ptr<RemovalPermit> permitForShare() = 0;
    virtual void take(TreeRemover& giver, FolderShare share) = 0;

    const std::string& item() const { return item_; }
    /// Counts a change of a folder after it was listed. False if there were so many that whoever keeps writing there
    /// wins.
    bool mayRetry() { return ++changes_ <= maximumChanges; }

private:
    static constexpr int maximumChanges = 100;

    const std::string item_;
    std::atomic<int> changes_{0};
};

/// Removes folders iteratively. Keeps the folders still to be removed, level by level, deepest last. A folder stays
/// listed while it is being emptied, so the last name of a level is the way down from it; any other may be left to a
/// fellow. Used by one thread at a time, which need not be the same.
class TreeRemover {
public:
    enum class State {
        done,
        waiting,  ///< until every share of the level waitsAt() is gone; then run() continues
        failed,
        stopped
    };

    /// Removes the whole item from `parent`, which must stay open and is not changed otherwise.
    TreeRemover(FellowRemovers& fellows, int parent);
    /// Removes folders inside the item.
    TreeRemover(FellowRemovers& fellows, FolderShare share);

    State run();
    /// Ends run() after the current folder. From any thread.
    void stop() { stopped_ = true; }
    bool isStopped() const { return stopped_; }

    std::size_t waitsAt() const { return levels_.size() - 1; }
    /// For display, after State::failed.
    const Failure& failure() const { return failure_; }

private:
    struct Level {
        std::vector<std::string> names;
        bool shared = false;  ///< fellows have some of its folders
    };

    int current() const { return levels_.size() == 1 ? parent() : ladder_.current(); }
    int parent() const { return ownParent_ ? ownParent_.get() : itemParent_; }
    /// Whether the current directory is in the item, so that its permissions may be changed.
    bool isInItem() const { return levels_.size() > 1 || ownParent_; }
    /// Whether the last name of the current level is the item.
    bool isAtItem() const { return !isInItem(); }
    bool descend(const std::string& name);
    template <class Call>
    bool inFolder(Call call);
    bool openToOwner(const std::string& name);
    bool enterLast();
    bool leave();
    bool listHere(std::vector<std::string>& files);
    bool unlinkHere(const std::vector<std::string>& files);
    void offerFolders();
    bool retryOrFail(int error);
    bool failOnLast(int error);
    bool fail(const std::string& name, bool isItem, int error);

    FellowRemovers& fellows_;
    std::unique_ptr<RemovalPermit> permit_;
    Descriptor ownParent_;  ///< of a share
    int itemParent_ = -1;
    DirectoryLadder ladder_;
    std::vector<Level> levels_;  ///< the first is the parent's
    std::size_t removed_ = 0;    ///< entries, for FellowRemovers::wantFolders()
    std::atomic<bool> stopped_{false};
    Failure failure_;
};

/// The sentence that `name` was not removed, with the reason.
std::string notRemoved(std::string_view name, std::string_view reason);
/// The reason where another volume is in the way.
std::string volumeIsThere();

}  // namespace zelk
