// SPDX-License-Identifier: MIT
#include "platform/macos/MacTrash.h"

#import <Foundation/Foundation.h>
#include <sys/file.h>

#include "platform/macos/FoundationFailure.h"
#include "platform/macos/FoundationPaths.h"
#include "platform/posix/DirectoryNames.h"
#include "platform/posix/FailureText.h"
#include "platform/posix/FolderLock.h"
#include "platform/posix/OpenDirectory.h"
#include "platform/posix/OpenParent.h"
#include "platform/posix/RemovalPermit.h"
#include "platform/posix/RemoveEntry.h"

namespace zelk {

std::optional<std::vector<std::string>> MacTrash::list() {
    std::optional<std::vector<std::string>> entries = directoryNames(Descriptor(openRootDirectory(location_)));
    if (entries) {
        for (std::string& entry : *entries) entry.insert(0, location_ + "/");
    }
    return entries;
}

Failure MacTrash::trash(const ItemPath& item) {
    const RemovalPermit permit;
    if (const int error = errorOnWay(item))
        return failureText(item.name(), "couldn’t be moved to the Trash", reasonOfParent(item, error));
    @autoreleasepool {
        return unlessThrown(
            [&]() -> Failure {
                NSError* error = nil;
                // Never a trailing slash, so that a link itself is moved.
                if ([[NSFileManager defaultManager] trashItemAtURL:fileURL(item.text(), false)
                                                  resultingItemURL:nil
                                                             error:&error])
                    return std::nullopt;
                return failureOf(error);
            },
            [](NSException* exception) { return failureOf(exception); });
    }
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
