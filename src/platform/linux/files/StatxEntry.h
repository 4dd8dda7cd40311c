// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DirectoryReader.h"

namespace zelk {

enum class StatxOutcome { ok, gone, failed };

/// Fills `entry` with what `name` is in the directory `directory`; its own self where it is a link, and without waking
/// a mount that is only mounted on use. `entry.name` refers to `name`. `mount` gets the number of the mount that it
/// lies on, 0 where the kernel (before 5.8) does not tell it.
StatxOutcome statxEntry(int directory, const char* name, DirEntry& entry, std::uint64_t* mount = nullptr);

/// A device number in 32 bits, as the kernel itself holds it: 12 bits major, 20 bits minor.
std::int32_t deviceNumber(std::uint32_t major, std::uint32_t minor);

}  // namespace zelk
