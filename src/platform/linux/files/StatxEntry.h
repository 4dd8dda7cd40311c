// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DirectoryReader.h"

namespace zelk {

enum class StatxOutcome { ok, gone, failed };

/// Fills `entry` with the status of `name` in `directory`, without following links or triggering automounts.
/// `entry.name` refers to `name`. `mount` receives the mount id, 0 on kernels before 5.8.
StatxOutcome statxEntry(int directory, const char* name, DirEntry& entry, std::uint64_t* mount = nullptr);

/// Packs a device number into 32 bits as the kernel does: 12 bits major, 20 bits minor.
std::int32_t deviceNumber(std::uint32_t major, std::uint32_t minor);

}  // namespace zelk
