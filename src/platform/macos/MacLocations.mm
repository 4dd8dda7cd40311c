// SPDX-License-Identifier: MIT
#include "platform/macos/MacLocations.h"

#import <Foundation/Foundation.h>

#include "platform/FolderPath.h"
#include "platform/macos/FoundationPaths.h"

namespace zelk {

MacLocations::MacLocations(const std::string& home) {
    if (!home.empty()) {
        home_ = normalFolder(home);
        applicationSupport_ = home_ + "/Library/Application Support";
        return;
    }
    @autoreleasepool {
        home_ = normalFolder([NSHomeDirectory() fileSystemRepresentation]);
        NSURL* support = [[[NSFileManager defaultManager] URLsForDirectory:NSApplicationSupportDirectory
                                                                 inDomains:NSUserDomainMask] firstObject];
        if (support != nil) applicationSupport_ = normalFolder(pathBytes(support));
    }
}

std::vector<BackgroundItemFolder> MacLocations::backgroundItemFolders() {
    constexpr BackgroundItemKind kind = BackgroundItemKind::launchdPropertyLists;
    return {{pathIn(home_, "Library/LaunchAgents"), kind, true},
            {"/Library/LaunchAgents", kind, false},
            {"/Library/LaunchDaemons", kind, false}};
}

}  // namespace zelk
