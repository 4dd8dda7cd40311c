// SPDX-License-Identifier: MIT
// Declares the Cocoa calls that Zelk makes, so that its Objective-C++ compiles without Apple's headers. Not used on a
// Mac. tools/macos_check compares every name, type and value with a list of what the frameworks have. Declare only what
// a source needs.
#pragma once

#if __has_include(<Foundation/NSObjCRuntime.h>)
#error "the system's own headers are here: use them"
#endif

#include <CoreFoundation/CoreFoundation.h>
#include <objc/NSObject.h>
#include <objc/objc.h>

typedef double NSTimeInterval;

@class NSArray<ObjectType>;
@class NSDictionary<KeyType, ObjectType>;
@class NSDirectoryEnumerator<ObjectType>;
@class NSError;
@class NSString;
@class NSURL;

typedef NSString* NSURLResourceKey;

typedef enum : NSUInteger {
    NSApplicationSupportDirectory = 14,
} NSSearchPathDirectory;

typedef enum : NSUInteger {
    NSUserDomainMask = 1,
} NSSearchPathDomainMask;

typedef enum : NSUInteger {
    NSDirectoryEnumerationSkipsHiddenFiles = 4,
} NSDirectoryEnumerationOptions;

typedef struct {
    NSInteger majorVersion;
    NSInteger minorVersion;
    NSInteger patchVersion;
} NSOperatingSystemVersion;

extern "C" {

extern NSURLResourceKey const NSURLTotalFileAllocatedSizeKey;
extern NSURLResourceKey const NSURLVolumeTotalCapacityKey;
extern NSURLResourceKey const NSURLVolumeAvailableCapacityKey;
extern NSURLResourceKey const NSURLVolumeAvailableCapacityForImportantUsageKey
    __attribute__((availability(macos, introduced = 10.13)));

NSString* NSHomeDirectory(void);
}

@interface NSString : NSObject
@property(readonly) const char* UTF8String;
@property(readonly) const char* fileSystemRepresentation;
+ (instancetype)stringWithUTF8String:(const char*)text;
@end

@interface NSNumber : NSObject
@property(readonly) BOOL boolValue;
@property(readonly) double doubleValue;
@property(readonly) long long longLongValue;
@property(readonly) unsigned long long unsignedLongLongValue;
@end

@interface NSArray<ObjectType> : NSObject
@property(readonly) NSUInteger count;
@property(readonly) ObjectType firstObject;
- (ObjectType)objectAtIndex:(NSUInteger)index;
+ (instancetype)arrayWithObjects:(const ObjectType[])objects count:(NSUInteger)count;
@end

@interface NSMutableArray<ObjectType> : NSArray <ObjectType>
+ (instancetype)arrayWithCapacity:(NSUInteger)capacity;
- (void)addObject:(ObjectType)object;
@end

@interface NSDictionary<KeyType, ObjectType> : NSObject
- (ObjectType)objectForKey:(KeyType)key;
@end

@interface NSEnumerator<ObjectType> : NSObject
- (ObjectType)nextObject;
@end

@interface NSDirectoryEnumerator<ObjectType> : NSEnumerator <ObjectType>
@end

@interface NSError : NSObject
@property(readonly) NSString* localizedDescription;
@end

@interface NSException : NSObject
@property(readonly) NSString* reason;
@end

@interface NSURL : NSObject
@property(readonly) const char* fileSystemRepresentation;
+ (NSURL*)fileURLWithFileSystemRepresentation:(const char*)path
                                  isDirectory:(BOOL)isDirectory
                                relativeToURL:(NSURL*)base;
+ (instancetype)URLWithString:(NSString*)text;
- (BOOL)getResourceValue:(out id*)value forKey:(NSURLResourceKey)key error:(out NSError**)error;
- (NSDictionary<NSURLResourceKey, id>*)resourceValuesForKeys:(NSArray<NSURLResourceKey>*)keys
                                                       error:(out NSError**)error;
@end

@interface NSFileManager : NSObject
@property(class, readonly) NSFileManager* defaultManager;
- (NSArray<NSURL*>*)URLsForDirectory:(NSSearchPathDirectory)directory inDomains:(NSSearchPathDomainMask)domains;
- (NSDirectoryEnumerator<NSURL*>*)enumeratorAtURL:(NSURL*)url
                       includingPropertiesForKeys:(NSArray<NSURLResourceKey>*)keys
                                          options:(NSDirectoryEnumerationOptions)options
                                     errorHandler:(BOOL (^)(NSURL*, NSError*))handler;
- (BOOL)trashItemAtURL:(NSURL*)url resultingItemURL:(out NSURL**)result error:(out NSError**)error;
@end

@interface NSBundle : NSObject
@property(class, readonly) NSBundle* mainBundle;
- (id)objectForInfoDictionaryKey:(NSString*)key;
@end

@interface NSHost : NSObject
@property(readonly) NSString* localizedName;
+ (instancetype)currentHost;
@end

@interface NSProcessInfo : NSObject
@property(class, readonly) NSProcessInfo* processInfo;
@property(readonly) NSOperatingSystemVersion operatingSystemVersion;
@property(readonly) NSUInteger activeProcessorCount;
@property(readonly) unsigned long long physicalMemory;
@property(readonly) NSTimeInterval systemUptime;
@end

static inline id CFBridgingRelease(CFTypeRef __attribute__((cf_consumed)) object) {
    return (__bridge_transfer id)object;
}
