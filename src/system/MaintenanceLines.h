// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/SystemKind.h"

namespace zelk {

/// The shell line that frees memory, for PrivilegedCommands::run(). On Linux it drops caches: "3" is both the contents
/// of files and what the kernel remembers of folders.
std::string freeMemoryLine(SystemKind system);
/// The shell line that flushes the DNS cache, for PrivilegedCommands::run(). Linux needs no administrator for it.
std::string flushDNSLine(SystemKind system);

}  // namespace zelk
