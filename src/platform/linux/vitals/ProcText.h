// SPDX-License-Identifier: MIT
// Parses the files in /proc, /sys and /etc. Pure functions over any text; the only failure is an absent value.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Vitals.h"
#include "platform/VitalsArithmetic.h"

namespace zelk {

/// Makes one line of raw text: up to the first NUL, each run of blanks and control characters (including line feeds)
/// replaced by one space, trimmed. Need not be UTF-8.
std::string tidied(std::string_view text);

/// The decimal number in `text`, ignoring surrounding blanks; absent if it is anything else or does not fit.
std::optional<std::int64_t> wholeNumber(std::string_view text);

/// The value of KEY=value in the shell-like format of os-release and machine-info: unquotes, ignores comments, the last
/// assignment wins. Absent if there is none; may be empty.
std::optional<std::string> assignedValue(std::string_view text, std::string_view key);

/// The processor name from /proc/cpuinfo; empty if it has none, as on most ARM machines.
std::string processorName(std::string_view cpuinfo);

/// The chip from a device tree's "compatible" list, whose last entry is "maker,chip"; empty if it has none.
std::string chipOfDeviceTree(std::string_view compatible);

/// The system's name and version from os-release, without a code name in parentheses at the end; may be empty.
std::string systemName(std::string_view osRelease);

/// "Linux 6.1.5" from a kernel release such as "6.1.5-7-amd64"; empty without a major and a minor number.
std::string kernelVersionText(std::string_view release);

/// A field of /proc/meminfo in bytes; absent if it is missing, has no unit of kB or is implausibly large (above 2^60).
std::optional<std::uint64_t> memoryField(std::string_view meminfo, std::string_view field);

/// The unit of the PageCounts that memoryCounts() returns: /proc/meminfo counts kibibytes, not pages.
inline constexpr std::uint64_t meminfoUnit = 1024;

/// Converts /proc/meminfo; absent unless it reports anonymous memory.
///
/// - wired: what the kernel can neither drop nor swap: unevictable and huge pages, unreclaimable slabs, kernel stacks,
///   page tables, per-processor memory.
/// - active: both anonymous lists, including shared memory and tmpfs. The active list alone is not enough: since Linux
///   5.9 new pages start on the inactive list and stay there until memory is short, and none can be freed without being
///   swapped.
/// - compressor: what zswap holds, and `zramBytes`.
///
/// File pages and reclaimable slabs are excluded: they can be freed at once without loss.
std::optional<PageCounts> memoryCounts(std::string_view meminfo, std::uint64_t zramBytes);

/// The bytes used by a zram device, from its mm_stat; 0 if malformed.
std::uint64_t zramMemory(std::string_view mmStat);

/// The totals of all processors from /proc/stat. Interrupts and stolen time count as system, I/O wait as idle; guest
/// time is already part of user. Absent unless the first four columns exist.
std::optional<CPUTicks> processorTicks(std::string_view stat);

/// Converts block counts to bytes, saturating at the largest signed number. `available` is what an ordinary user may
/// use; nothing on Linux frees more for important data.
VolumeInfo volumeOfBlocks(std::uint64_t blockSize, std::uint64_t blocks, std::uint64_t available);

}  // namespace zelk
