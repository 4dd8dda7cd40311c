// SPDX-License-Identifier: MIT
#include "platform/macos/MacVitals.h"

#import <Foundation/Foundation.h>
#import <IOKit/ps/IOPowerSources.h>

#include "platform/Translation.h"
#include "platform/VitalsArithmetic.h"
#include "platform/macos/FoundationFailure.h"
#include "platform/macos/FoundationPaths.h"
#include "platform/macos/KernelFigures.h"

namespace zelk {

namespace {

std::optional<std::int64_t> integer(id value) {
    if (![value isKindOfClass:[NSNumber class]]) return std::nullopt;
    const std::int64_t whole = [value longLongValue];
    if (static_cast<double>(whole) != [value doubleValue]) return std::nullopt;
    return whole;
}

std::optional<bool> boolean(id value) {
    if (![value isKindOfClass:[NSNumber class]]) return std::nullopt;
    return [value boolValue];
}

std::optional<std::string> text(id value) {
    if (![value isKindOfClass:[NSString class]]) return std::nullopt;
    const char* bytes = [value UTF8String];
    return bytes != nullptr ? std::optional<std::string>(bytes) : std::nullopt;
}

/// The first built-in power source.
std::optional<BatteryFields> internalBattery() {
    id info = CFBridgingRelease(IOPSCopyPowerSourcesInfo());
    if (info == nil) return std::nullopt;
    NSArray* sources = CFBridgingRelease(IOPSCopyPowerSourcesList((__bridge CFTypeRef)info));
    for (NSUInteger i = 0; i < [sources count]; ++i) {
        NSDictionary* source = (__bridge NSDictionary*)IOPSGetPowerSourceDescription(
            (__bridge CFTypeRef)info, (__bridge CFTypeRef)[sources objectAtIndex:i]);
        if (text([source objectForKey:@"Type"]) != "InternalBattery") continue;
        return BatteryFields{.currentCapacity = integer([source objectForKey:@"Current Capacity"]),
                             .maxCapacity = integer([source objectForKey:@"Max Capacity"]),
                             .powerSourceState = text([source objectForKey:@"Power Source State"]),
                             .isCharging = boolean([source objectForKey:@"Is Charging"])};
    }
    return std::nullopt;
}

}  // namespace

DeviceInfo MacVitals::device() {
    @autoreleasepool {
        NSProcessInfo* process = [NSProcessInfo processInfo];
        const NSOperatingSystemVersion version = [process operatingSystemVersion];
        return {
            .computerName = text([[NSHost currentHost] localizedName]).value_or(translated("SystemTexts", "This Mac")),
            .chip = sysctlText("machdep.cpu.brand_string").value_or(""),
            .cores = static_cast<std::int64_t>([process activeProcessorCount]),
            .memoryBytes = [process physicalMemory],
            .osVersion = versionText("macOS", version.majorVersion, version.minorVersion, version.patchVersion),
            .modelIdentifier = sysctlText("hw.model").value_or("")};
    }
}

MemoryStats MacVitals::memory() {
    @autoreleasepool {
        return memoryFromPages([[NSProcessInfo processInfo] physicalMemory], kernelPageSize(), kernelPageCounts());
    }
}

std::optional<CPUTicks> MacVitals::ticks() {
    return kernelTicks();
}

PowerInfo MacVitals::power() {
    @autoreleasepool {
        return powerFromBattery(internalBattery());
    }
}

std::optional<VolumeInfo> MacVitals::volume(const std::string& path) {
    @autoreleasepool {
        NSArray<NSURLResourceKey>* keys = @[
            NSURLVolumeTotalCapacityKey, NSURLVolumeAvailableCapacityKey,
            NSURLVolumeAvailableCapacityForImportantUsageKey
        ];
        NSDictionary<NSURLResourceKey, id>* values =
            unlessThrown([&] { return [fileURL(path, false) resourceValuesForKeys:keys error:nil]; },
                         [](NSException*) -> NSDictionary<NSURLResourceKey, id>* { return nil; });
        if (values == nil) return std::nullopt;
        const auto bytes = [&](NSURLResourceKey key) { return integer([values objectForKey:key]).value_or(0); };
        return VolumeInfo{.total = bytes(NSURLVolumeTotalCapacityKey),
                          .available = bytes(NSURLVolumeAvailableCapacityKey),
                          .importantAvailable = bytes(NSURLVolumeAvailableCapacityForImportantUsageKey)};
    }
}

double MacVitals::uptime() {
    @autoreleasepool {
        return [[NSProcessInfo processInfo] systemUptime];
    }
}

}  // namespace zelk
