// SPDX-License-Identifier: MIT
#include "platform/macos/MacLocations.h"

#import <Foundation/Foundation.h>

#include "platform/macos/FoundationPaths.h"

namespace zelk {

namespace {

std::string withoutTrailingSlash(std::string path) {
    while (path.size() > 1 && path.ends_with('/')) path.pop_back();
    return path;
}

}  // namespace

MacLocations::MacLocations(const std::string& home) {
    if (!home.empty()) {
        home_ = withoutTrailingSlash(home);
        applicationSupport_ = home_ + "/Library/Application Support";
        return;
    }
    @autoreleasepool {
        home_ = withoutTrailingSlash([NSHomeDirectory() fileSystemRepresentation]);
        NSURL* support = [[[NSFileManager defaultManager] URLsForDirectory:NSApplicationSupportDirectory
                                                                 inDomains:NSUserDomainMask] firstObject];
        if (support != nil) applicationSupport_ = withoutTrailingSlash(pathBytes(support));
    }
}

}  // namespace zelk
