// SPDX-License-Identifier: MIT
// See Foundation/Foundation.h.
#pragma once

typedef const void* CFTypeRef;
typedef const struct __attribute__((objc_bridge(NSArray))) __CFArray* CFArrayRef;
typedef const struct __attribute__((objc_bridge(NSDictionary))) __CFDictionary* CFDictionaryRef;

typedef double CGFloat;

typedef struct {
    CGFloat x;
    CGFloat y;
} CGPoint;

typedef struct {
    CGFloat width;
    CGFloat height;
} CGSize;

typedef struct {
    CGPoint origin;
    CGSize size;
} CGRect;
