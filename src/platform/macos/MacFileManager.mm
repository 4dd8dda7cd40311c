// SPDX-License-Identifier: MIT
#include "platform/macos/MacFileManager.h"

#import <Foundation/Foundation.h>

#include <sys/stat.h>
#include <unistd.h>

#include "platform/macos/FoundationFailure.h"
#include "platform/macos/FoundationPaths.h"
#include "platform/posix/DirectoryNames.h"
#include "platform/posix/DurableFile.h"
#include "platform/posix/FileFacts.h"
#include "platform/posix/OpenDirectory.h"
#include "platform/posix/RealPath.h"
#include "platform/posix/RemoveEntry.h"
#include "platform/posix/TryOpenFile.h"

namespace zelk {

namespace {

/// 0 without such a value, as for a folder.
std::uint64_t allocatedSizeOf(NSURL* url) {
    NSNumber* bytes = nil;
    if (![url getResourceValue:&bytes forKey:NSURLTotalFileAllocatedSizeKey error:nil]) return 0;
    return [bytes unsignedLongLongValue];
}

void addAllocatedSizesBelow(const std::string& path, NSDirectoryEnumerationOptions options, std::uint64_t& bytes) {
    // Without an error handler the enumerator skips what it cannot read.
    NSDirectoryEnumerator<NSURL*>* below =
        [[NSFileManager defaultManager] enumeratorAtURL:fileURL(path, true)
                             includingPropertiesForKeys:@[ NSURLTotalFileAllocatedSizeKey ]
                                                options:options
                                           errorHandler:nil];
    for (bool more = true; more;) {
        @autoreleasepool {  // a folder may hold millions
            NSURL* entry = [below nextObject];
            more = entry != nil;
            if (more) bytes += allocatedSizeOf(entry);
        }
    }
}

std::uint64_t sizeBelow(const std::string& path, NSDirectoryEnumerationOptions options) {
    std::uint64_t bytes = 0;
    @autoreleasepool {
        unlessThrown([&] { addAllocatedSizesBelow(path, options, bytes); }, [](NSException*) {});  // the sum so far
    }
    return bytes;
}

}  // namespace

bool MacFileManager::exists(const std::string& path) {
    struct stat status;
    return stat(path.c_str(), &status) == 0;
}

std::optional<FileProperties> MacFileManager::properties(const std::string& path) {
    struct stat status;
    if (lstat(path.c_str(), &status) != 0) return std::nullopt;
    const bool isOwn = status.st_uid == geteuid();
    if (S_ISDIR(status.st_mode)) return FileProperties{.isDirectory = true, .isOwn = isOwn};
    @autoreleasepool {
        const std::uint64_t bytes = unlessThrown([&] { return allocatedSizeOf(fileURL(path, false)); },
                                                 [](NSException*) { return std::uint64_t{0}; });
        return FileProperties{.allocatedSize = bytes, .isLink = S_ISLNK(status.st_mode), .isOwn = isOwn};
    }
}

std::optional<std::vector<std::string>> MacFileManager::list(const std::string& path) {
    return directoryNames(Descriptor(openRootDirectory(path)));
}

std::uint64_t MacFileManager::allocatedSizeBelow(const std::string& path) {
    return sizeBelow(path, NSDirectoryEnumerationSkipsHiddenFiles);
}

std::uint64_t MacFileManager::fullSizeBelow(const std::string& path) {
    return sizeBelow(path, static_cast<NSDirectoryEnumerationOptions>(0));
}

std::optional<std::string> MacFileManager::realPath(const std::string& path) {
    return resolvedPath(path);
}

std::optional<std::string> MacFileManager::linkTarget(const std::string& path) {
    return textOfLink(path);
}

bool MacFileManager::isLocked(const std::string& path) {
    return isLockedByAnother(path);
}

std::optional<std::string> MacFileManager::read(const std::string& path) {
    return readWholeFile(path);
}

std::optional<std::string> MacFileManager::readSmall(const std::string& path, std::size_t most) {
    return readWholeFile(path, most);
}

std::optional<std::string> MacFileManager::readStart(const std::string& path, std::size_t most) {
    return readFileStart(path, most);
}

bool MacFileManager::replaceDurably(const std::string& path, std::string_view content) {
    return replaceFileDurably(path, content);
}

bool MacFileManager::createDirectories(const std::string& path) {
    return createDirectoryTree(path);
}

int MacFileManager::tryOpen(const std::string& path) {
    return tryOpenFile(path);
}

Failure MacFileManager::remove(const ItemPath& item) {
    return removeItem(item);
}

}  // namespace zelk
