// SPDX-License-Identifier: MIT
#include "platform/linux/trash/EmptyTrash.h"

#include <sys/file.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Text.h"
#include "platform/linux/trash/TrashEntry.h"
#include "platform/linux/trash/TrashOrphans.h"
#include "platform/posix/DirectoryNames.h"
#include "platform/posix/FolderLock.h"
#include "platform/posix/FolderMounts.h"
#include "platform/posix/RemovalHelpers.h"
#include "platform/posix/RemovalPermit.h"
#include "platform/posix/RemoveEntry.h"

namespace zelk {
namespace {

std::vector<TrashEntry> entriesOf(const TrashFolder& trash) {
    std::vector<TrashEntry> entries;
    for (std::string& name : directoryNames(reopenDirectory(trash.files)).value_or(std::vector<std::string>())) {
        if (const auto status = fileStatus(trash.files.get(), name)) entries.push_back({std::move(name), *status});
    }
    return entries;
}

/// A number above those that a killed emptying of the same process id left: no entry may come to the name of one that
/// another thread is setting aside.
unsigned firstNumber(const std::vector<TrashEntry>& entries) {
    const std::string own = "emptying." + std::to_string(::getpid()) + ".";
    // No emptying counts so far, and beyond it counting would begin again.
    constexpr unsigned most = std::numeric_limits<unsigned>::max() / 2;
    unsigned first = 0;
    for (const TrashEntry& entry : entries) {
        if (!entry.name.starts_with(own)) continue;
        const auto number = parseNumber<unsigned>(std::string_view(entry.name).substr(own.size()));
        if (number && *number >= first && *number < most) first = *number + 1;
    }
    return first;
}

/// Removes the entry under its own name.
bool removeInPlace(const TrashFolder& trash, const TrashEntry& entry) {
    const Place info = infoOf(trash, entry.name);
    const std::optional<FileStatus> itsInfo = fileStatus(info.folder, info.name);
    if (!holds({trash.files.get(), entry.name}, entry.content)) return false;
    if (removeEntry(trash.files.get(), entry.name, MountsInside::none)) return false;
    // Its name is free by now, and the info there may be that of a new item.
    if (itsInfo && holds(info, *itsInfo)) ::unlinkat(info.folder, info.name.c_str(), 0);
    return true;
}

/// False if the entry, or what is left of it, is still there.
bool removeTrashed(const TrashFolder& trash, const TrashEntry& entry, FolderMounts& mounts,
                   std::atomic<unsigned>& next) {
    // Look under its old name: the table may have been read when it still had it.
    if (entry.content.isDirectory() && mounts.areIn(entry.name, entry.content.mount)) return false;
    std::string own;
    const int error = setAside(trash, entry, "emptying", next, own);
    // A full volume may have no room for another name, and emptying is how it gets room.
    if (error == ENOSPC || error == EDQUOT) return removeInPlace(trash, entry);
    if (error != 0) return false;
    if (removeEntry(trash.files.get(), own, MountsInside::none)) {
        putBack(trash, own, entry);
        return false;
    }
    const Place info = infoOf(trash, own);
    ::unlinkat(info.folder, info.name.c_str(), 0);
    return true;
}

}  // namespace

std::size_t emptyTrash(const TrashFolder& trash) {
    Descriptor turn;
    if (!lockFolder(trash.files.get(), LOCK_EX, turn)) return 0;
    const std::vector<TrashEntry> entries = entriesOf(trash);
    std::atomic<unsigned> next{firstNumber(entries)};
    std::atomic<std::size_t> removed{0};
    removeInRanges(entries.size(), [&](std::size_t first, std::size_t end) {
        FolderMounts mounts(trash.files.get());
        for (std::size_t number = first; number < end; ++number) {
            const RemovalPermit permit;
            if (removeTrashed(trash, entries[number], mounts, next)) ++removed;
        }
    });
    sweepOrphans(trash, Orphans::anybody);
    // A size cache of other programs.
    if (removed > 0) ::unlinkat(trash.itself.get(), "directorysizes", 0);
    return removed;
}

}  // namespace zelk
