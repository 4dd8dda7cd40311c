// SPDX-License-Identifier: MIT
// See Foundation/Foundation.h.
#pragma once

#include <CoreFoundation/CoreFoundation.h>

extern "C" {

CFTypeRef IOPSCopyPowerSourcesInfo(void) __attribute__((cf_returns_retained));
CFArrayRef IOPSCopyPowerSourcesList(CFTypeRef blob) __attribute__((cf_returns_retained));
CFDictionaryRef IOPSGetPowerSourceDescription(CFTypeRef blob, CFTypeRef ps);
}
