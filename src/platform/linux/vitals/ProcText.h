// SPDX-License-Identifier: MIT
// What the texts under /proc, /sys and /etc say. Pure functions: any text in, no failure beyond an absent value out.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Vitals.h"
#include "platform/VitalsArithmetic.h"

namespace zelk {

/// One line of text out of a raw one: up to the first NUL, blanks and control characters (line ends too) run together
/// into one blank, none at the ends. The bytes need not be UTF-8.
std::string tidied(std::string_view text);

/// The decimal number that `text` is, blanks and a line end around it left out; absent if it is anything else or does
/// not fit.
std::optional<std::int64_t> wholeNumber(std::string_view text);

/// The value of KEY=value in the shell-like form of os-release and machine-info: quotes and backslashes resolved,
/// comments passed over, the last assignment wins. Absent if there is none; may be empty.
std::optional<std::string> assignedValue(std::string_view text, std::string_view key);

/// The processor's name out of /proc/cpuinfo; empty if it has none, as on most ARM machines.
std::string processorName(std::string_view cpuinfo);

/// The chip out of a device tree's "compatible" list, whose last entry is "maker,chip"; empty if it has none.
std::string chipOfDeviceTree(std::string_view compatible);

/// The name and version of the system out of os-release, a code name in parentheses at its end left out; empty if it
/// names none.
std::string systemName(std::string_view osRelease);

/// "Linux 6.1.5" out of a kernel release such as "6.1.5-7-amd64"; empty without a major and a minor number.
std::string kernelVersionText(std::string_view release);

/// A field of /proc/meminfo in bytes; absent if it is missing, has no unit of kB or is beyond any machine (2^60).
std::optional<std::uint64_t> memoryField(std::string_view meminfo, std::string_view field);

/// The unit of PageCounts as memoryCounts() gives them: /proc/meminfo speaks of kibibytes, not of pages.
inline constexpr std::uint64_t meminfoUnit = 1024;

/// /proc/meminfo in the terms of the probes; absent unless it tells of anonymous memory.
///
/// - wired: what the kernel can neither drop nor swap: unevictable and huge pages, unreclaimable slabs, kernel stacks,
///   page tables, per-processor memory.
/// - active: both anonymous lists, shared memory and tmpfs with them. Not the active one alone: since Linux 5.9 new
///   pages start on the inactive list and stay there until memory runs short, and none of them can be had at once
///   without being swapped.
/// - compressor: what zswap holds, and `zramBytes`.
///
/// File pages and reclaimable slabs are in none of them: they can be had at once, without loss.
std::optional<PageCounts> memoryCounts(std::string_view meminfo, std::uint64_t zramBytes);

/// The memory that a zram device takes, in bytes, out of its mm_stat; 0 if the text is of another shape.
std::uint64_t zramMemory(std::string_view mmStat);

/// The sums over all processors out of /proc/stat. Interrupts and what a hypervisor took are system time, waiting for
/// a disk is idle; a guest's time is already in the user's. Absent unless the first four are there.
std::optional<CPUTicks> processorTicks(std::string_view stat);

/// Seconds out of /proc/uptime.
std::optional<double> uptimeSeconds(std::string_view uptime);

/// Bytes out of counts of blocks, cut off at the largest signed number. `available` is what an ordinary user may take;
/// nothing on Linux frees more for an important use.
VolumeInfo volumeOfBlocks(std::uint64_t blockSize, std::uint64_t blocks, std::uint64_t available);

}  // namespace zelk
