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

/// What `call` gives, or `otherwise(exception)` where Foundation throws: it answers what it takes for a programmer's
/// mistake, such as a path that it cannot make an address of, by an exception. Of what a user has on the disk that is a
/// failure like any other, and must not end the program.
template <class Call, class Otherwise>
auto unlessThrown(Call call, Otherwise otherwise) -> decltype(call()) {
    @try {
        return call();
    } @catch (NSException* exception) {
        return otherwise(exception);
    }
}

/// The reason that `exception` was thrown for.
inline Failure failureOf(NSException* exception) {
    const char* const text = [[exception reason] UTF8String];
    return text == nullptr || *text == '\0' ? failureOf(static_cast<NSError*>(nil)) : text;
}

}  // namespace zelk
