// SPDX-License-Identifier: MIT
#include "platform/macos/MacWorkspace.h"

#import <AppKit/AppKit.h>

#include "platform/macos/FoundationFailure.h"
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
        const auto show = [&] {
            NSMutableArray<NSURL*>* urls = [NSMutableArray arrayWithCapacity:paths.size()];
            for (const std::string& path : paths)
                if (NSURL* url = fileURL(path, false)) [urls addObject:url];
            if ([urls count] > 0) [[NSWorkspace sharedWorkspace] activateFileViewerSelectingURLs:urls];
        };
        unlessThrown(show, [](NSException*) {});
    }
}

void MacWorkspace::openURL(const std::string& url) {
    @autoreleasepool {
        const auto open = [&] {
            NSString* text = [NSString stringWithUTF8String:url.c_str()];
            NSURL* address = text != nil ? [NSURL URLWithString:text] : nil;
            if (address != nil) [[NSWorkspace sharedWorkspace] openURL:address];
        };
        unlessThrown(open, [](NSException*) {});
    }
}

std::optional<IconPixels> MacWorkspace::entryIcon(const std::string& nameOrPath, int side) {
    return icon(nameOrPath, true, side);
}

std::optional<IconPixels> MacWorkspace::icon(const std::string& path, bool /*isDirectory*/, int side) {
    @autoreleasepool {
        NSString* text = [NSString stringWithUTF8String:path.c_str()];
        NSImage* image = text == nil ? nil
                                     : unlessThrown([&] { return [[NSWorkspace sharedWorkspace] iconForFile:text]; },
                                                    [](NSException*) -> NSImage* { return nil; });
        if (image == nil || side < 1) return std::nullopt;

        const auto length = static_cast<std::size_t>(side);
        std::vector<unsigned char> bytes(length * length * 4);  // red, green, blue and alpha of each pixel
        unsigned char* planes[] = {bytes.data()};
        NSBitmapImageRep* bitmap = [[NSBitmapImageRep alloc] initWithBitmapDataPlanes:planes
                                                                           pixelsWide:side
                                                                           pixelsHigh:side
                                                                        bitsPerSample:8
                                                                      samplesPerPixel:4
                                                                             hasAlpha:YES
                                                                             isPlanar:NO
                                                                       colorSpaceName:NSDeviceRGBColorSpace
                                                                          bytesPerRow:side * 4
                                                                         bitsPerPixel:32];
        NSGraphicsContext* context = [NSGraphicsContext graphicsContextWithBitmapImageRep:bitmap];
        if (context == nil) return std::nullopt;
        [NSGraphicsContext saveGraphicsState];
        [NSGraphicsContext setCurrentContext:context];
        const auto edge = static_cast<CGFloat>(side);
        [image drawInRect:CGRect{{0, 0}, {edge, edge}}];
        [NSGraphicsContext restoreGraphicsState];

        IconPixels pixels{side, std::vector<std::uint32_t>(length * length)};
        for (std::size_t i = 0; i < pixels.argb.size(); ++i) {
            const unsigned char* rgba = &bytes[i * 4];
            pixels.argb[i] = std::uint32_t{rgba[3]} << 24 | std::uint32_t{rgba[0]} << 16 | std::uint32_t{rgba[1]} << 8 |
                             std::uint32_t{rgba[2]};
        }
        return pixels;
    }
}

}  // namespace zelk
