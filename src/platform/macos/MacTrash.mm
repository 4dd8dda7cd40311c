// SPDX-License-Identifier: MIT
#include "platform/macos/MacTrash.h"

#import <Foundation/Foundation.h>

#include "platform/macos/FoundationFailure.h"
#include "platform/macos/FoundationPaths.h"
#include "platform/posix/DirectoryNames.h"
#include "platform/posix/FailureText.h"
#include "platform/posix/OpenDirectory.h"
#include "platform/posix/OpenParent.h"
#include "platform/posix/RemovalTurn.h"

namespace zelk {

std::optional<std::vector<std::string>> MacTrash::list() {
    std::optional<std::vector<std::string>> entries = directoryNames(Descriptor(openRootDirectory(location_)));
    if (entries) {
        for (std::string& entry : *entries) entry.insert(0, location_ + "/");
    }
    return entries;
}

Failure MacTrash::trash(const ItemPath& item) {
    const RemovalTurn turn;
    if (const int error = errorOnWay(item))
        return failureText(item.name(), "couldn’t be moved to the Trash", reasonOfParent(item, error));
    @autoreleasepool {
        NSError* error = nil;
        // No slash at the end of the URL whatever the item is: of a link the link itself is meant.
        if ([[NSFileManager defaultManager] trashItemAtURL:fileURL(item.text(), false)
                                          resultingItemURL:nil
                                                     error:&error])
            return std::nullopt;
        return failureOf(error);
    }
}

std::size_t MacTrash::empty() {
    std::size_t removed = 0;
    @autoreleasepool {
        NSFileManager* manager = [NSFileManager defaultManager];
        NSArray<NSURL*>* entries = [manager contentsOfDirectoryAtURL:fileURL(location_, true)
                                          includingPropertiesForKeys:@[]
                                                             options:NSDirectoryEnumerationOptions {}
                                                               error:nil];
        for (NSUInteger index = 0; index < [entries count]; ++index) {
            @autoreleasepool {
                if ([manager removeItemAtURL:[entries objectAtIndex:index] error:nil]) ++removed;
            }
        }
    }
    return removed;
}

}  // namespace zelk
