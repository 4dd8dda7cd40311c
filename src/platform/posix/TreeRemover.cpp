// SPDX-License-Identifier: MIT
#include "platform/posix/TreeRemover.h"

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <iterator>
#include <optional>
#include <utility>

#include "platform/Translation.h"
#include "platform/posix/FailureText.h"
#include "platform/posix/FileStatus.h"
#include "platform/posix/OwnerAccess.h"

namespace zelk {
namespace {

bool unlinkFile(int folder, const char* name) {
    return ::unlinkat(folder, name, 0) == 0 || errno == ENOENT;
}

bool unlinkFolder(int folder, const char* name) {
    return ::unlinkat(folder, name, AT_REMOVEDIR) == 0 || errno == ENOENT;
}

/// Whether a refused unlink of `name` means that it is a folder: Linux returns EISDIR, other systems EPERM.
bool isFolderAfter(int error, int folder, const std::string& name) {
    if (error == EISDIR) return true;
    if (error != EPERM) return false;
    const std::optional<FileStatus> status = fileStatus(folder, name);
    return status && status->isDirectory();
}

std::string reasonOfRemoval(int error) {
    return error == EXDEV ? volumeIsThere() : systemText(error);
}

}  // namespace

TreeRemover::TreeRemover(FellowRemovers& fellows, int parent)
    : fellows_(fellows), itemParent_(parent), ladder_(openSubdirectoryOnMount) {
    levels_.push_back({{fellows.item()}});
}

TreeRemover::TreeRemover(FellowRemovers& fellows, FolderShare share)
    : fellows_(fellows),
      permit_(std::move(share.permit)),
      ownParent_(std::move(share.parent)),
      ladder_(openSubdirectoryOnMount) {
    levels_.push_back({std::move(share.names)});
}

TreeRemover::State TreeRemover::run() {
    while (!stopped_.load(std::memory_order_relaxed)) {
        Level& level = levels_.back();
        if (!level.names.empty()) {
            if (!enterLast()) return State::failed;
            if (fellows_.wantFolders(removed_)) offerFolders();
        } else if (levels_.size() == 1) {
            return State::done;
        } else if (std::exchange(level.shared, false)) {
            return State::waiting;
        } else if (!leave()) {
            return State::failed;
        }
    }
    return State::stopped;
}

bool TreeRemover::descend(const std::string& name) {
    return levels_.size() == 1 ? ladder_.start(openSubdirectoryOnMount(parent(), name)) : ladder_.descend(name);
}

/// Runs `call` in the current directory, and again after granting its owner access. Never changes the folder that
/// holds the item, which is not to be removed.
template <class Call>
bool TreeRemover::inFolder(Call call) {
    if (call()) return true;
    if (errno != EACCES || !isInItem()) return false;
    // Again also if there was nothing to grant: a fellow in the same folder may just have done it.
    static_cast<void>(giveOwnerAccess(current()));
    return call();
}

/// After entering `name` failed: grants access. True if entering may succeed now.
bool TreeRemover::openToOwner(const std::string& name) {
    const bool here = isInItem() && giveOwnerAccess(current());
    if (giveOwnerAccess(current(), name) || here) return true;
    // A fellow in the same folder may just have granted it.
    return static_cast<bool>(Descriptor(openSubdirectoryOnMount(current(), name)));
}

bool TreeRemover::enterLast() {
    const std::string& name = levels_.back().names.back();
    if (descend(name)) {
        levels_.emplace_back();
        std::vector<std::string> files;
        return listHere(files) && unlinkHere(files);
    }
    const int error = errno;
    ladder_.ascend();
    switch (error) {
        case ENOENT:
            break;
        case EACCES:
            if (openToOwner(name)) return true;  // retry: it stays listed
            [[fallthrough]];
        case EPERM:  // an unreadable folder may still be empty
            if (!unlinkFolder(current(), name.c_str())) return failOnLast(error);
            break;
        case ENOTDIR:
        case ELOOP:  // swapped since it was listed
            if (!unlinkFile(current(), name.c_str())) return errno == EISDIR ? retryOrFail(error) : failOnLast(errno);
            break;
        default:
            return failOnLast(error);
    }
    levels_.back().names.pop_back();
    return true;
}

/// Leaves a folder that is empty as far as known, and removes it.
bool TreeRemover::leave() {
    levels_.pop_back();
    ladder_.ascend();
    std::vector<std::string>& names = levels_.back().names;
    if (current() < 0) return failOnLast(ESTALE);
    if (inFolder([&] { return unlinkFolder(current(), names.back().c_str()); })) {
        names.pop_back();
        ++removed_;
        return true;
    }
    // It stays listed, and is entered or removed as what it is now.
    const bool changed = errno == ENOTEMPTY || errno == EEXIST || errno == ENOTDIR;
    return changed ? retryOrFail(errno) : failOnLast(errno);
}

/// Lists the current directory completely: some systems skip entries if others are removed meanwhile.
bool TreeRemover::listHere(std::vector<std::string>& files) {
    const auto failed = [this](int error) {
        const Level& above = levels_[levels_.size() - 2];
        return fail(above.names.back(), levels_.size() == 2 && !ownParent_, error);
    };
    const auto close = [](DIR* stream) { ::closedir(stream); };
    Descriptor copy(::fcntl(current(), F_DUPFD_CLOEXEC, 0));
    const std::unique_ptr<DIR, decltype(close)> stream(copy ? ::fdopendir(copy.get()) : nullptr, close);
    if (!stream) return failed(errno);
    copy.release();
    for (;;) {
        errno = 0;
        const dirent* const entry = ::readdir(stream.get());
        if (entry == nullptr) break;
        const std::string_view name(entry->d_name);
        if (name == "." || name == "..") continue;
        (entry->d_type == DT_DIR ? levels_.back().names : files).emplace_back(name);
    }
    return errno == 0 || errno == ENOENT || failed(errno);
}

bool TreeRemover::unlinkHere(const std::vector<std::string>& files) {
    const int folder = current();
    for (const std::string& name : files) {
        if (stopped_.load(std::memory_order_relaxed)) return true;
        if (inFolder([&] { return unlinkFile(folder, name.c_str()); })) {
            ++removed_;
            continue;
        }
        const int error = errno;
        if (!isFolderAfter(error, folder, name)) return fail(name, false, error);
        levels_.back().names.push_back(name);
    }
    return true;
}

/// Leaves the first half of the highest level that has more than the way down from it, as what is highest is the most
/// work. What a remover gives away is after all that it still does before it has to wait, and before all that it gave
/// away earlier.
void TreeRemover::offerFolders() {
    std::size_t level = levels_.size() > 1 ? ladder_.highestOpen() + 1 : 0;
    if (level == 1 && levels_.front().names.size() > 1) level = 0;
    while (level < levels_.size() && levels_[level].names.size() < 2) ++level;
    if (level == levels_.size()) return;
    const int folder = level == 0 ? parent() : ladder_.at(level - 1);
    std::unique_ptr<RemovalPermit> permit = folder < 0 ? nullptr : fellows_.permitForShare();
    Descriptor copy(permit ? ::fcntl(folder, F_DUPFD_CLOEXEC, 0) : -1);
    if (!copy) return;
    std::vector<std::string>& names = levels_[level].names;
    const auto half = names.begin() + static_cast<std::ptrdiff_t>(names.size() / 2);
    FolderShare share{std::move(permit), std::move(copy), {}, level};
    share.names.assign(std::make_move_iterator(names.begin()), std::make_move_iterator(half));
    names.erase(names.begin(), half);
    levels_[level].shared = true;
    fellows_.take(*this, std::move(share));
}

bool TreeRemover::retryOrFail(int error) {
    return fellows_.mayRetry() || failOnLast(error);
}

/// Fails on the folder that was to be entered or removed.
bool TreeRemover::failOnLast(int error) {
    return fail(levels_.back().names.back(), isAtItem(), error);
}

bool TreeRemover::fail(const std::string& name, bool isItem, int error) {
    const std::string reason = reasonOfRemoval(error);
    failure_ = isItem ? notRemoved(name, reason)
                      : filled(translated("Failure", "“%1” in “%2” couldn’t be removed: %3"),
                               {readableName(name), readableName(fellows_.item()), reason});
    return false;
}

std::string volumeIsThere() {
    return translated("Failure", "another volume is mounted there");
}

std::string notRemoved(std::string_view name, std::string_view reason) {
    return failureText(ZELK_TEXT("Failure", "“%1” couldn’t be removed: %2"), name, reason);
}

}  // namespace zelk
