// SPDX-License-Identifier: MIT
#include "platform/macos/MacWorkspace.h"

#import <AppKit/AppKit.h>

#include "platform/macos/FoundationPaths.h"

namespace zelk {

std::vector<std::string> MacWorkspace::runningApplications() {
    std::vector<std::string> names;
    @autoreleasepool {
        NSArray<NSRunningApplication*>* running = [[NSWorkspace sharedWorkspace] runningApplications];
        for (NSUInteger i = 0; i < [running count]; ++i) {
            const char* name = [[[running objectAtIndex:i] localizedName] UTF8String];
            names.emplace_back(name != nullptr ? name : "");
        }
    }
    return names;
}

void MacWorkspace::reveal(const std::vector<std::string>& paths) {
    @autoreleasepool {
        NSMutableArray<NSURL*>* urls = [NSMutableArray arrayWithCapacity:paths.size()];
        for (const std::string& path : paths)
            if (NSURL* url = fileURL(path, false)) [urls addObject:url];
        if ([urls count] > 0) [[NSWorkspace sharedWorkspace] activateFileViewerSelectingURLs:urls];
    }
}

void MacWorkspace::openURL(const std::string& url) {
    @autoreleasepool {
        NSString* text = [NSString stringWithUTF8String:url.c_str()];
        NSURL* address = text != nil ? [NSURL URLWithString:text] : nil;
        if (address != nil) [[NSWorkspace sharedWorkspace] openURL:address];
    }
}

}  // namespace zelk
