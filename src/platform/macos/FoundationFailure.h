// SPDX-License-Identifier: MIT
// Objective-C++ only.
#pragma once

#import <Foundation/Foundation.h>

#include "platform/Failure.h"
#include "platform/Translation.h"

namespace zelk {

/// The system's description of `error`. A missing error is a failure too.
inline Failure failureOf(NSError* error) {
    const char* const text = [[error localizedDescription] UTF8String];
    return text == nullptr || *text == '\0' ? translated("Failure", "The operation couldn’t be completed.") : text;
}

/// Returns `call()`, or `otherwise(exception)` if Foundation throws. It throws on what it considers programming errors,
/// such as a path that it cannot convert; for a user's files that is an ordinary failure and must not crash the
/// program.
template <class Call, class Otherwise>
auto unlessThrown(Call call, Otherwise otherwise) -> decltype(call()) {
    @try {
        return call();
    } @catch (NSException* exception) {
        return otherwise(exception);
    }
}

/// The reason of `exception`.
inline Failure failureOf(NSException* exception) {
    const char* const text = [[exception reason] UTF8String];
    return text == nullptr || *text == '\0' ? failureOf(static_cast<NSError*>(nil)) : text;
}

}  // namespace zelk
