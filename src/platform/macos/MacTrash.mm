// SPDX-License-Identifier: MIT
#include "platform/macos/MacTrash.h"

#import <Foundation/Foundation.h>
#include <sys/file.h>

#include "platform/Translation.h"
#include "platform/macos/FoundationFailure.h"
#include "platform/macos/FoundationPaths.h"
#include "platform/macos/MacRestore.h"
#include "platform/posix/DirectoryNames.h"
#include "platform/posix/FailureText.h"
#include "platform/posix/FileStatus.h"
#include "platform/posix/FolderLock.h"
#include "platform/posix/OpenDirectory.h"
#include "platform/posix/OpenParent.h"
#include "platform/posix/RemovalPermit.h"
#include "platform/posix/RemoveEntry.h"
#include "platform/posix/RestoreOrigin.h"

namespace zelk {
namespace {

/// Describes the trashed item at `path`. Absent if the Trash may not be read.
std::optional<TrashedItem> itemInTrash(const ItemPath& origin, const FileStatus& parent, const std::string& path) {
    const std::optional<ItemPath> inTrash = ItemPath::from(path);
    const Descriptor folder = inTrash ? openParent(*inTrash) : Descriptor();
    const std::optional<FileStatus> status =
        folder ? fileStatus(folder.get(), std::string(inTrash->name())) : std::nullopt;
    if (!status) return std::nullopt;
    return TrashedItem{origin, identityOf(parent), inTrash->text(), identityOf(*status), {}};
}

}  // namespace

std::optional<std::vector<std::string>> MacTrash::list() {
    std::optional<std::vector<std::string>> entries = directoryNames(Descriptor(openRootDirectory(location_)));
    if (entries) {
        for (std::string& entry : *entries) entry.insert(0, location_ + "/");
    }
    return entries;
}

TrashResult MacTrash::trash(const ItemPath& item) {
    const RemovalPermit permit;
    if (const int error = errorOnWay(item))
        return {failureText(ZELK_TEXT("Failure", "“%1” couldn’t be moved to the Trash: %2"), item.name(),
                            reasonOfParent(item, error))};
    const Descriptor parent = openParent(item);
    const std::optional<FileStatus> above = parent ? fileStatus(parent.get()) : std::nullopt;
    @autoreleasepool {
        return unlessThrown(
            [&]() -> TrashResult {
                NSError* error = nil;
                NSURL* moved = nil;
                // Never a trailing slash, so that a link itself is moved.
                if (![[NSFileManager defaultManager] trashItemAtURL:fileURL(item.text(), false)
                                                   resultingItemURL:&moved
                                                              error:&error])
                    return {failureOf(error)};
                TrashResult result;
                if (above && moved != nil) result.item = itemInTrash(item, *above, pathBytes(moved));
                return result;
            },
            [](NSException* exception) -> TrashResult { return {failureOf(exception)}; });
    }
}

Failure MacTrash::restore(const TrashedItem& item) {
    const RemovalPermit permit;
    const Failure reason = moveOutOfTrash(item);
    if (!reason) return std::nullopt;
    return failureText(ZELK_TEXT("Failure", "“%1” couldn’t be put back: %2"), item.origin.name(), *reason);
}

std::size_t MacTrash::empty() {
    const Descriptor home(openForLookups(home_));
    if (!home) return 0;
    const Descriptor trash(openDirectoryBeneath(home.get(), ".Trash"));
    Descriptor turn;
    if (!trash || !lockFolder(trash.get(), LOCK_EX, turn)) return 0;
    return removeEntriesOf(trash);
}

}  // namespace zelk
