// SPDX-License-Identifier: MIT
// Converts between Foundation objects and paths as bytes. Objective-C++ only.
#pragma once

#import <Foundation/Foundation.h>

#include <string>

namespace zelk {

/// Keeps the bytes unchanged, which no conversion through NSString guarantees. `path` is absolute.
inline NSURL* fileURL(const std::string& path, bool isDirectory) {
    return [NSURL fileURLWithFileSystemRepresentation:path.c_str() isDirectory:isDirectory relativeToURL:nil];
}

inline std::string pathBytes(NSURL* url) {
    return [url fileSystemRepresentation];
}

}  // namespace zelk
