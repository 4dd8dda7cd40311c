// SPDX-License-Identifier: MIT
#include "platform/linux/trash/LinuxTrash.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/FolderPath.h"
#include "platform/Translation.h"
#include "platform/linux/files/LinuxLocations.h"
#include "platform/linux/trash/EmptyTrash.h"
#include "platform/linux/trash/TrashFolder.h"
#include "platform/linux/trash/TrashMove.h"
#include "platform/linux/trash/TrashOrphans.h"
#include "platform/linux/trash/TrashRestore.h"
#include "platform/posix/DirectoryNames.h"
#include "platform/posix/FailureText.h"
#include "platform/posix/FileStatus.h"
#include "platform/posix/MountTable.h"
#include "platform/posix/OpenDirectory.h"
#include "platform/posix/OpenParent.h"
#include "platform/posix/RemovalPermit.h"
#include "platform/posix/RestoreOrigin.h"

namespace zelk {
namespace {

/// Whether the home trash `path`, or its nearest existing parent, is on the volume of `folder`. Absent, with errno set,
/// if unknown.
std::optional<bool> isOnVolumeOf(const FileStatus& folder, const std::string& path) {
    for (std::size_t end = path.size(); end != std::string::npos; end = end == 0 ? end - 1 : path.rfind('/', end - 1)) {
        const Descriptor nearest(openForLookups(end == 0 ? "/" : path.substr(0, end)));
        if (!nearest) continue;
        const std::optional<FileStatus> status = fileStatus(nearest.get());
        if (!status) return std::nullopt;
        return status->isOnVolumeOf(folder);
    }
    return std::nullopt;
}

/// The path of `path` relative to `top`, without a leading slash; absent if it is not below.
std::optional<std::string> relativePath(std::string_view path, std::string_view top) {
    while (top.ends_with('/')) top.remove_suffix(1);
    if (path.size() <= top.size() + 1 || !path.starts_with(top) || path[top.size()] != '/') return std::nullopt;
    return std::string(path.substr(top.size() + 1));
}

/// Whether `other` is an ancestor of `folder`, by whatever path it was reached. Absent, with errno set, if unknown.
std::optional<bool> isInside(int folder, const FileStatus& other) {
    std::optional<FileStatus> status = fileStatus(folder);
    Descriptor here;
    while (status && !status->isSameFile(other)) {
        here = Descriptor(::openat(here ? here.get() : folder, "..", O_PATH | O_DIRECTORY | O_CLOEXEC));
        const std::optional<FileStatus> above = here ? fileStatus(here.get()) : std::nullopt;
        if (above && above->isSameFile(*status) && above->mount == status->mount) return false;  // the root
        status = above;
    }
    if (!status) return std::nullopt;
    return true;
}

/// Whether the nearest existing part of the missing `path` is a dangling link: then its target is missing, such as an
/// unmounted volume, and not just a folder that was never created.
bool isBehindDanglingLink(std::string path) {
    struct stat status {};
    while (::lstat(path.c_str(), &status) != 0 && errno == ENOENT && path.find('/') != std::string::npos)
        path.resize(path.rfind('/'));
    return S_ISLNK(status.st_mode) && ::stat(path.c_str(), &status) != 0;
}

}  // namespace

LinuxTrash::LinuxTrash(const std::string& home, Sandbox sandbox) : sandbox_(std::move(sandbox)) {
    LinuxLocations locations(home, sandbox_);
    home_ = locations.home();
    dataHome_ = locations.xdgHomes().value().data;
}

std::string LinuxTrash::location() {
    return pathIn(dataHome_, "Trash/files");
}

std::optional<std::vector<std::string>> LinuxTrash::list() {
    Descriptor folder(openRootDirectory(location()));
    // The folder is created when something is trashed for the first time.
    if (!folder && errno == ENOENT && !isBehindDanglingLink(location())) return std::vector<std::string>();
    std::optional<std::vector<std::string>> entries = directoryNames(std::move(folder));
    if (entries) {
        for (std::string& entry : *entries) entry.insert(0, location() + "/");
    }
    return entries;
}

TrashResult LinuxTrash::trash(const ItemPath& item) {
    const RemovalPermit permit;
    TrashResult result;
    const Failure reason = move(item, result.item);
    if (reason)
        result.failure =
            failureText(ZELK_TEXT("Failure", "“%1” couldn’t be moved to the Trash: %2"), item.name(), *reason);
    return result;
}

Failure LinuxTrash::restore(const TrashedItem& item) {
    const RemovalPermit permit;
    const Failure reason = moveBack(item);
    if (!reason) return std::nullopt;
    return failureText(ZELK_TEXT("Failure", "“%1” couldn’t be put back: %2"), item.origin.name(), *reason);
}

Failure LinuxTrash::move(const ItemPath& item, std::optional<TrashedItem>& trashed) {
    const Descriptor parent = openParent(item);
    if (!parent) return reasonOfParent(item, errno);
    const Place from{parent.get(), std::string(item.name())};
    const std::optional<FileStatus> above = fileStatus(parent.get());
    const std::optional<FileStatus> status = above ? fileStatus(parent.get(), from.name) : std::nullopt;
    if (!status) return systemText(errno);
    if (status->mount != above->mount) return translated("Failure", "another volume is mounted there");

    // The system cannot return a path longer than its limit; then use the one it was reached by.
    const std::string path = pathIn(pathOfDirectory(parent.get()).value_or(item.parent()), from.name);
    if (sandbox_.isPartOf(path, home_)) return translated("Failure", "it belongs to the sandbox that Zelk runs in");
    if (status->isDirectory() && isMountedBelow(mountTable(), path))
        return translated("Failure", "another volume is mounted in it");

    std::string reason;
    std::string original = item.text();
    std::optional<TrashFolder> trash;
    const std::optional<bool> atHome = isOnVolumeOf(*above, location());
    if (!atHome) return systemText(errno);
    if (*atHome) {
        // Do not create a missing home folder.
        if (isInFolder(dataHome_, home_) && ::access(home_.c_str(), F_OK) != 0 && errno == ENOENT)
            return failureText(ZELK_TEXT("Failure", "“%1” couldn’t be opened: %2"), home_, systemText(ENOENT));
        trash = openHomeTrash(dataHome_, IfMissing::create, reason);
    } else {
        const std::vector<Mount> mounts = mountTable();
        const std::optional<std::string> top = mountPointOf(mounts, above->mount);
        const std::optional<std::string> relative = top ? relativePath(path, *top) : std::nullopt;
        if (sandbox_.isInside() && !isWholeVolume(mounts, above->mount))
            return translated("Failure", "Flatpak’s sandbox has no Trash for its folder");
        if (!relative) return noPlaceForTrash();
        original = *relative;
        trash = openVolumeTrash(*top, *above, reason);
    }
    if (!trash) return reason;
    const std::optional<FileStatus> itself = fileStatus(trash->itself.get());
    if (!itself || itself->isSameFile(*above)) return translated("Failure", "it is part of the Trash itself");
    // Moving it again would lose its original path.
    const std::optional<bool> inside = isInside(parent.get(), *itself);
    if (!inside) return systemText(errno);
    if (*inside) return translated("Failure", "it is in the Trash already");

    sweepOnce(*trash, *itself);
    const std::string key = std::to_string(itself->device) + ":" + std::to_string(itself->inode) + "/" + from.name;
    TrashEntryName entry;
    if (Failure failure = moveIntoTrash(
            from, original, *trash, [&] { return numbers_.next(key); }, flush_, entry))
        return failure;
    // Describe what was really moved, even if something else took the item's place at the last moment.
    const FileStatus moved = fileStatus(trash->files.get(), entry.name).value_or(*status);
    trashed = TrashedItem{item, identityOf(*above), pathIn(trash->path, "files/" + entry.name), identityOf(moved),
                          std::move(entry.info)};
    return std::nullopt;
}

Failure LinuxTrash::moveBack(const TrashedItem& item) {
    std::string reason;
    const Descriptor parent = openOrigin(item, reason);
    if (!parent) return reason;
    const std::optional<FileStatus> above = fileStatus(parent.get());
    if (!above) return systemText(errno);
    const std::size_t slash = item.path.rfind('/');
    const std::string name = item.path.substr(slash + 1);
    const std::string path = item.path.substr(0, item.path.rfind('/', slash - 1));

    std::optional<TrashFolder> trash;
    if (path == pathIn(dataHome_, "Trash")) {
        trash = openHomeTrash(dataHome_, IfMissing::fail, reason);
    } else {
        const std::optional<std::string> top = mountPointOf(mountTable(), above->mount);
        if (!top) return noPlaceForTrash();
        trash = reopenVolumeTrash(*top, *above, path, reason);
    }
    if (!trash) return reason;
    return restoreFromTrash(*trash, name, item, {parent.get(), std::string(item.origin.name())});
}

/// Blocks other threads of this process, which could otherwise be in the middle of a move and postpone the sweep.
void LinuxTrash::sweepOnce(const TrashFolder& trash, const FileStatus& itself) {
    const std::lock_guard lock(sweeping_);
    const std::pair key(itself.device, itself.inode);
    if (!swept_.contains(key) && sweepOrphans(trash, Orphans::own)) swept_.insert(key);
}

std::size_t LinuxTrash::empty() {
    std::string reason;
    const std::optional<TrashFolder> trash = openHomeTrash(dataHome_, IfMissing::fail, reason);
    if (!trash) return 0;
    numbers_.forget();
    return emptyTrash(*trash);
}

std::size_t LinuxTrash::Numbers::next(const std::string& key) {
    const std::lock_guard lock(mutex_);
    return ++last_.try_emplace(key, 1).first->second;
}

void LinuxTrash::Numbers::forget() {
    const std::lock_guard lock(mutex_);
    last_.clear();
}

}  // namespace zelk
