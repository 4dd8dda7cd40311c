// SPDX-License-Identifier: MIT
// Between Foundation's objects and paths as bytes. Objective-C++ only.
#pragma once

#import <Foundation/Foundation.h>

#include <string>

namespace zelk {

/// Takes the bytes as they are, which no way through an NSString promises. `path` is absolute.
inline NSURL* fileURL(const std::string& path, bool isDirectory) {
    return [NSURL fileURLWithFileSystemRepresentation:path.c_str() isDirectory:isDirectory relativeToURL:nil];
}

inline std::string pathBytes(NSURL* url) {
    return [url fileSystemRepresentation];
}

}  // namespace zelk
