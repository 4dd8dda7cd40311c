// SPDX-License-Identifier: MIT
#include "platform/linux/trash/EmptyTrash.h"

#include <sys/file.h>
#include <unistd.h>

#include <string>
#include <vector>

#include "platform/linux/trash/TrashEntry.h"
#include "platform/linux/trash/TrashOrphans.h"
#include "platform/posix/DirectoryNames.h"
#include "platform/posix/FolderLock.h"
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

}  // namespace

std::size_t emptyTrash(const TrashFolder& trash) {
    Descriptor turn;
    if (!lockFolder(trash.files.get(), LOCK_EX, turn)) return 0;
    std::size_t removed = 0;
    for (const TrashEntry& entry : entriesOf(trash)) {
        std::string own;
        if (setAside(trash, entry, "emptying", own) != 0) continue;
        if (removeEntry(trash.files.get(), own)) {
            putBack(trash, own, entry);
            continue;
        }
        ++removed;
        const Place info = infoOf(trash, own);
        ::unlinkat(info.folder, info.name.c_str(), 0);
    }
    sweepOrphans(trash, Orphans::anybody);
    // A size cache of other programs.
    if (removed > 0) ::unlinkat(trash.itself.get(), "directorysizes", 0);
    return removed;
}

}  // namespace zelk
