// SPDX-License-Identifier: MIT
// Declares the AppKit calls that Zelk makes; see ../Foundation/Foundation.h.
#pragma once

#if __has_include(<AppKit/NSWorkspace.h>)
#error "the system's own headers are here: use them"
#endif

#include <Foundation/Foundation.h>

@interface NSRunningApplication : NSObject
@property(readonly) NSString* localizedName;
@end

@interface NSImage : NSObject
- (void)drawInRect:(CGRect)rect;
@end

typedef NSString* NSColorSpaceName;

extern "C" {

extern NSColorSpaceName const NSDeviceRGBColorSpace;
}

@interface NSBitmapImageRep : NSObject
- (instancetype)initWithBitmapDataPlanes:(unsigned char**)planes
                              pixelsWide:(NSInteger)width
                              pixelsHigh:(NSInteger)height
                           bitsPerSample:(NSInteger)bitsPerSample
                         samplesPerPixel:(NSInteger)samplesPerPixel
                                hasAlpha:(BOOL)alpha
                                isPlanar:(BOOL)planar
                          colorSpaceName:(NSColorSpaceName)colorSpaceName
                             bytesPerRow:(NSInteger)bytesPerRow
                            bitsPerPixel:(NSInteger)bitsPerPixel;
@end

@interface NSGraphicsContext : NSObject
@property(class, strong) NSGraphicsContext* currentContext;
+ (NSGraphicsContext*)graphicsContextWithBitmapImageRep:(NSBitmapImageRep*)bitmap;
+ (void)saveGraphicsState;
+ (void)restoreGraphicsState;
@end

@interface NSWorkspace : NSObject
@property(class, readonly) NSWorkspace* sharedWorkspace;
@property(readonly) NSArray<NSRunningApplication*>* runningApplications;
- (BOOL)openURL:(NSURL*)url;
- (NSImage*)iconForFile:(NSString*)path;
- (void)activateFileViewerSelectingURLs:(NSArray<NSURL*>*)urls;
@end

@class NSMenu;

@interface NSMenuItem : NSObject
@property(readonly) NSMenu* submenu;
@end

@interface NSMenu : NSObject
@property(readonly) NSInteger numberOfItems;
- (NSMenuItem*)itemAtIndex:(NSInteger)index;
- (void)removeItem:(NSMenuItem*)item;
@end

@interface NSApplication : NSObject
@property(class, readonly) NSApplication* sharedApplication;
@property(readonly) NSMenu* mainMenu;
@property(strong) NSMenu* servicesMenu;
- (void)activateIgnoringOtherApps:(BOOL)flag;
@end

@interface NSWindow : NSObject
@property(class) BOOL allowsAutomaticWindowTabbing;
@end
