// SPDX-License-Identifier: MIT
#import <AppKit/AppKit.h>

#include "ui/shell/NativeApplication.h"

namespace zelk {

void refuseWindowTabs() {
    NSWindow.allowsAutomaticWindowTabbing = NO;
}

/// The toolkit has put it into the application's menu, where it would stand empty.
void removeServicesMenu() {
    NSMenu* services = NSApp.servicesMenu;
    NSApp.servicesMenu = nil;
    for (NSMenuItem* top in NSApp.mainMenu.itemArray)
        for (NSMenuItem* item in top.submenu.itemArray)
            if (services != nil && item.submenu == services) {
                [top.submenu removeItem:item];
                return;
            }
}

}  // namespace zelk
