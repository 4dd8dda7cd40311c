// SPDX-License-Identifier: MIT
#import <AppKit/AppKit.h>

#include "ui/shell/NativeApplication.h"

namespace zelk {

namespace {

std::optional<QString> bundleText(NSString* key) {
    id value = [NSBundle.mainBundle objectForInfoDictionaryKey:key];
    if (![value isKindOfClass:NSString.class]) return std::nullopt;
    return QString::fromUtf8(((NSString*)value).UTF8String);
}

}  // namespace

BundleInfo applicationBundle() {
    return {bundleText(@"CFBundleName"), bundleText(@"CFBundleShortVersionString"), bundleText(@"CFBundleVersion")};
}

void refuseWindowTabs() {
    NSWindow.allowsAutomaticWindowTabbing = NO;
}

/// The toolkit has put it into the application's menu, where it would stand empty.
void removeServicesMenu() {
    NSApplication* application = NSApplication.sharedApplication;
    NSMenu* services = application.servicesMenu;
    if (services == nil) return;
    application.servicesMenu = nil;
    NSMenu* bar = application.mainMenu;
    for (NSInteger menu = 0; menu < bar.numberOfItems; ++menu) {
        NSMenu* entries = [bar itemAtIndex:menu].submenu;
        for (NSInteger entry = 0; entry < entries.numberOfItems; ++entry) {
            NSMenuItem* item = [entries itemAtIndex:entry];
            if (item.submenu != services) continue;
            [entries removeItem:item];
            return;
        }
    }
}

void activateApplication() {
    [NSApplication.sharedApplication activateIgnoringOtherApps:YES];
}

}  // namespace zelk
