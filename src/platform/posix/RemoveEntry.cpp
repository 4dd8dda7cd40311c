// SPDX-License-Identifier: MIT
#include "platform/posix/RemoveEntry.h"

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

#include "platform/FolderPath.h"
#include "platform/Translation.h"
#include "platform/posix/Descriptor.h"
#include "platform/posix/DirectoryLadder.h"
#include "platform/posix/DirectoryNames.h"
#include "platform/posix/FailureText.h"
#include "platform/posix/FileStatus.h"
#include "platform/posix/MountTable.h"
#include "platform/posix/OpenDirectory.h"
#include "platform/posix/OpenParent.h"
#include "platform/posix/OwnerAccess.h"
#include "platform/posix/RemovalPermit.h"

namespace zelk {
namespace {

constexpr std::string_view notRemoved = ZELK_TEXT("Failure", "“%1” couldn’t be removed: %2");

/// How often a folder may change after it was listed: be refilled or swapped for something else. Then a process that
/// keeps writing there wins.
constexpr int maximumChanges = 100;

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

std::string volumeIsThere() {
    return translated("Failure", "another volume is mounted there");
}

std::string reasonOfRemoval(int error) {
    return error == EXDEV ? volumeIsThere() : systemText(error);
}

/// Removes a tree iteratively. Keeps the folders still to be removed, level by level, deepest last. A folder stays
/// listed while it is being emptied, so the last name of a level is the way down from it.
class TreeRemover {
public:
    TreeRemover(int parent, const std::string& name) : parent_(parent), names_{name}, starts_{0} {}

    Failure run() {
        while (!starts_.empty()) {
            const bool good = names_.size() > starts_.back() ? enterLast() : leave();
            if (!good) return failure_;
        }
        return std::nullopt;
    }

private:
    /// The current directory; -1 if it was lost on the way back.
    int current() const { return starts_.size() == 1 ? parent_ : ladder_.current(); }

    bool descend(const std::string& name) {
        return starts_.size() == 1 ? ladder_.start(openSubdirectoryOnMount(parent_, name)) : ladder_.descend(name);
    }

    /// Runs `call` in the current directory, and again after granting its owner access. Never changes the folder that
    /// holds the item, which is not to be removed.
    template <class Call>
    bool inFolder(Call call) {
        if (call()) return true;
        const int error = errno;
        if (error == EACCES && starts_.size() > 1 && giveOwnerAccess(ladder_.current())) return call();
        errno = error;
        return false;
    }

    /// After entering `name` failed: grants access. True if entering may succeed now.
    bool openToOwner(const std::string& name) {
        const bool here = starts_.size() > 1 && giveOwnerAccess(ladder_.current());
        return giveOwnerAccess(current(), name) || here;
    }

    bool enterLast() {
        const std::string name = names_.back();
        if (descend(name)) {
            starts_.push_back(names_.size());
            return unlinkFilesHere();
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
                if (!unlinkFile(current(), name.c_str()))
                    return errno == EISDIR ? retryOrFail(error) : failOnLast(errno);
                break;
            default:
                return failOnLast(error);
        }
        names_.pop_back();
        return true;
    }

    /// Leaves a folder that is empty as far as known, and removes it.
    bool leave() {
        starts_.pop_back();
        if (starts_.empty()) return true;
        ladder_.ascend();
        const std::string name = names_.back();
        if (current() < 0) return failOnLast(ESTALE);
        if (inFolder([&] { return unlinkFolder(current(), name.c_str()); })) {
            names_.pop_back();
            return true;
        }
        // It stays listed, and is entered or removed as what it is now.
        const bool changed = errno == ENOTEMPTY || errno == EEXIST || errno == ENOTDIR;
        return changed ? retryOrFail(errno) : failOnLast(errno);
    }

    bool unlinkFilesHere() {
        const int folder = current();
        const std::string own = names_.back();
        const bool isItem = names_.size() == 1;
        const auto close = [](DIR* stream) { ::closedir(stream); };
        Descriptor copy(::fcntl(folder, F_DUPFD_CLOEXEC, 0));
        const std::unique_ptr<DIR, decltype(close)> stream(copy ? ::fdopendir(copy.get()) : nullptr, close);
        if (!stream) return fail(own, isItem, errno);
        copy.release();
        // List first: some systems skip entries if others are removed meanwhile.
        std::vector<std::string> files;
        for (;;) {
            errno = 0;
            const dirent* const entry = ::readdir(stream.get());
            if (entry == nullptr) break;
            const std::string name(entry->d_name);
            if (name == "." || name == "..") continue;
            (entry->d_type == DT_DIR ? names_ : files).push_back(name);
        }
        if (errno != 0 && errno != ENOENT) return fail(own, isItem, errno);
        for (const std::string& name : files) {
            if (inFolder([&] { return unlinkFile(folder, name.c_str()); })) continue;
            const int error = errno;
            if (!isFolderAfter(error, folder, name)) return fail(name, false, error);
            names_.push_back(name);
        }
        return true;
    }

    bool retryOrFail(int error) { return ++changes_ <= maximumChanges || failOnLast(error); }

    /// Fails on the folder that was to be entered or removed.
    bool failOnLast(int error) { return fail(names_.back(), names_.size() == 1, error); }

    bool fail(const std::string& name, bool isItem, int error) {
        const std::string reason = reasonOfRemoval(error);
        failure_ = isItem ? failureText(notRemoved, name, reason)
                          : filled(translated("Failure", "“%1” in “%2” couldn’t be removed: %3"),
                                   {readableName(name), readableName(names_.front()), reason});
        return false;
    }

    int parent_;
    DirectoryLadder ladder_{openSubdirectoryOnMount};
    std::vector<std::string> names_;
    std::vector<std::size_t> starts_;  ///< index in names_ of each level; the first is the parent's
    int changes_ = 0;
    Failure failure_;
};

}  // namespace

Failure removeEntry(int parent, const std::string& name) {
    const auto failed = [&](std::string_view reason) { return failureText(notRemoved, name, reason); };
    const std::optional<FileStatus> above = fileStatus(parent);
    const std::optional<FileStatus> item = fileStatus(parent, name);
    if (!above || !item) return failed(systemText(errno));
    if (item->mount != above->mount) return failed(volumeIsThere());
    if (!item->isDirectory()) {
        if (::unlinkat(parent, name.c_str(), 0) == 0) return std::nullopt;
        return failed(systemText(errno));
    }
    const std::optional<std::string> folder = pathOfDirectory(parent);
    if (folder && isMountedAnywhereIn(mountTable(), item->mount, pathIn(*folder, name)))
        return failed(translated("Failure", "another volume is mounted in it"));
    return TreeRemover(parent, name).run();
}

Failure removeItem(const ItemPath& item) {
    const RemovalPermit permit;
    const Descriptor parent = openParent(item);
    if (!parent) return failureText(notRemoved, item.name(), reasonOfParent(item, errno));
    return removeEntry(parent.get(), std::string(item.name()));
}

std::size_t removeEntriesOf(const Descriptor& folder) {
    if (!folder) return 0;
    const auto names = directoryNames(Descriptor(openDirectoryBeneath(folder.get(), "")));
    if (!names) return 0;
    std::size_t removed = 0;
    for (const std::string& name : *names) {
        const RemovalPermit permit;
        if (!removeEntry(folder.get(), name)) ++removed;
    }
    return removed;
}

}  // namespace zelk
