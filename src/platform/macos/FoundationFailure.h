// SPDX-License-Identifier: MIT
// Objective-C++ only.
#pragma once

#import <Foundation/Foundation.h>

#include "platform/Failure.h"

namespace zelk {

/// The system's own words for `error`. A failure that came with no error is one all the same.
inline Failure failureOf(NSError* error) {
    const char* const text = [[error localizedDescription] UTF8String];
    return text == nullptr || *text == '\0' ? "The operation couldn’t be completed." : text;
}

}  // namespace zelk
