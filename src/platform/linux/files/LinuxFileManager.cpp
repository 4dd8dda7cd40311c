// SPDX-License-Identifier: MIT
#include "platform/linux/files/LinuxFileManager.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstddef>

#include "platform/linux/files/LinuxDirectoryReader.h"
#include "platform/posix/Descriptor.h"
#include "platform/posix/DirectoryNames.h"
#include "platform/posix/DurableFile.h"
#include "platform/posix/FileFacts.h"
#include "platform/posix/OpenDirectory.h"
#include "platform/posix/RealPath.h"
#include "platform/posix/RemoveEntry.h"
#include "platform/posix/TryOpenFile.h"

namespace zelk {
namespace {

constexpr std::uint64_t blockBytes = 512;  // the unit of st_blocks on every volume

bool statusOf(const std::string& path, int flags, struct stat& status) {
    if (path.size() < PATH_MAX) return ::fstatat(AT_FDCWD, path.c_str(), &status, flags) == 0;
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos) return false;
    const Descriptor folder(openRootDirectory(path.substr(0, slash)));
    return folder && ::fstatat(folder.get(), path.c_str() + slash + 1, &status, flags) == 0;
}

/// The subdirectories that a walk has yet to enter, level by level, deepest last. Replaces recursion: neither the depth
/// nor the number of folders may crash the process.
class PendingFolders {
public:
    PendingFolders(std::int32_t device, bool hiddenToo) : device_(device), hiddenToo_(hiddenToo) {}

    /// Enters a level and adds its folders.
    void enter(const DirectoryReader::Entries* entries) {
        starts_.push_back(names_.size());
        if (entries == nullptr) return;
        for (const DirEntry& entry : *entries) {
            if (entry.objType == directoryObjectType && entry.deviceID == device_ && counts(entry))
                names_.emplace_back(entry.name);
        }
    }
    bool done() const { return starts_.empty(); }
    bool levelDone() const { return names_.size() == starts_.back(); }
    void leave() { starts_.pop_back(); }
    std::string take() {
        std::string name = std::move(names_.back());
        names_.pop_back();
        return name;
    }

    /// The bytes of the files in a folder.
    std::uint64_t bytesIn(const DirectoryReader::Entries* entries) const {
        std::uint64_t bytes = 0;
        if (entries == nullptr) return bytes;
        for (const DirEntry& entry : *entries) {
            if (entry.objType != directoryObjectType && counts(entry)) bytes += entry.allocSize;
        }
        return bytes;
    }

private:
    bool counts(const DirEntry& entry) const { return hiddenToo_ || !entry.name.starts_with('.'); }

    std::int32_t device_;
    bool hiddenToo_;
    std::vector<std::string> names_;
    std::vector<std::size_t> starts_;
};

std::uint64_t sizeBelow(const std::string& path, bool hiddenToo) {
    LinuxDirectoryService service;
    const std::optional<RootStatus> status = service.status(path);
    const std::shared_ptr<const DirectoryRoot> root = service.openRoot(path);
    if (!status || !root) return 0;
    const std::unique_ptr<DirectoryReader> reader = service.makeReader();
    PendingFolders pending(status->device, hiddenToo);
    const DirectoryReader::Entries* entries = reader->open(*root, "");
    std::uint64_t bytes = pending.bytesIn(entries);
    for (pending.enter(entries); !pending.done();) {
        if (pending.levelDone()) {
            pending.leave();
            reader->ascend();
            continue;
        }
        entries = reader->descend(pending.take());
        bytes += pending.bytesIn(entries);
        pending.enter(entries);
    }
    return bytes;
}

}  // namespace

bool LinuxFileManager::exists(const std::string& path) {
    // Beyond PATH_MAX every call would open the path in pieces from the top, and checking each folder of a deep chain
    // could take minutes. Nothing there is accessed by its path anyway.
    struct stat status {};
    return path.size() < PATH_MAX && ::stat(path.c_str(), &status) == 0;
}

std::optional<FileProperties> LinuxFileManager::properties(const std::string& path) {
    struct stat status {};
    if (!statusOf(path, AT_SYMLINK_NOFOLLOW, status)) return std::nullopt;
    const bool isOwn = status.st_uid == ::geteuid();
    if (S_ISDIR(status.st_mode)) return FileProperties{.isDirectory = true, .isOwn = isOwn};
    return FileProperties{.allocatedSize = static_cast<std::uint64_t>(status.st_blocks) * blockBytes,
                          .isLink = S_ISLNK(status.st_mode),
                          .isOwn = isOwn};
}

std::optional<std::vector<std::string>> LinuxFileManager::list(const std::string& path) {
    return directoryNames(Descriptor(openRootDirectory(path)));
}

std::uint64_t LinuxFileManager::allocatedSizeBelow(const std::string& path) {
    return sizeBelow(path, false);
}

std::uint64_t LinuxFileManager::fullSizeBelow(const std::string& path) {
    return sizeBelow(path, true);
}

std::optional<std::string> LinuxFileManager::realPath(const std::string& path) {
    return resolvedPath(path);
}

std::optional<std::string> LinuxFileManager::linkTarget(const std::string& path) {
    return textOfLink(path);
}

bool LinuxFileManager::isLocked(const std::string& path) {
    return isLockedByAnother(path);
}

std::optional<std::string> LinuxFileManager::read(const std::string& path) {
    return readWholeFile(path);
}

std::optional<std::string> LinuxFileManager::readSmall(const std::string& path, std::size_t most) {
    return readWholeFile(path, most);
}

std::optional<std::string> LinuxFileManager::readStart(const std::string& path, std::size_t most) {
    return readFileStart(path, most);
}

bool LinuxFileManager::replaceDurably(const std::string& path, std::string_view content) {
    return replaceFileDurably(path, content);
}

bool LinuxFileManager::createDirectories(const std::string& path) {
    return createDirectoryTree(path);
}

int LinuxFileManager::tryOpen(const std::string& path) {
    return tryOpenFile(path);
}

Failure LinuxFileManager::remove(const ItemPath& item) {
    return removeItem(item);
}

}  // namespace zelk
