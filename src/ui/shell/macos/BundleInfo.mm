// SPDX-License-Identifier: MIT
#import <Foundation/Foundation.h>

#include "ui/shell/BundleInfo.h"

namespace zelk {

namespace {

std::optional<QString> entry(NSString* key) {
    id value = [NSBundle.mainBundle objectForInfoDictionaryKey:key];
    if (![value isKindOfClass:NSString.class]) return std::nullopt;
    return QString::fromUtf8(((NSString*)value).UTF8String);
}

}  // namespace

BundleInfo applicationBundle() {
    return {entry(@"CFBundleName"), entry(@"CFBundleShortVersionString"), entry(@"CFBundleVersion")};
}

}  // namespace zelk
