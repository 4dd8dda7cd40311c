// SPDX-License-Identifier: MIT
#include "platform/linux/vitals/ProcText.h"

#include <algorithm>
#include <array>
#include <limits>

#include "platform/Text.h"

namespace zelk {

namespace {

bool isBlankOrControl(char c) {
    return static_cast<unsigned char>(c) <= ' ' || c == 0x7F;
}

/// The first non-empty value of "key: value" lines with this key.
std::string_view valueOf(std::string_view text, std::string_view key) {
    while (!text.empty()) {
        const std::string_view line = takeLine(text);
        const std::size_t colon = line.find(':');
        if (colon == std::string_view::npos || trimmed(line.substr(0, colon)) != key) continue;
        if (const std::string_view value = trimmed(line.substr(colon + 1)); !value.empty()) return value;
    }
    return {};
}

/// Unquotes the first word as a shell does and ignores the rest.
std::string unquoted(std::string_view text) {
    std::string value;
    char quote = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (quote == 0 && isBlankOrControl(c)) break;
        if (c == quote) {
            quote = 0;
        } else if (quote == 0 && (c == '"' || c == '\'')) {
            quote = c;
        } else if (c == '\\' && quote != '\'' && i + 1 < text.size()) {
            value += text[++i];
        } else {
            value += c;
        }
    }
    return value;
}

std::int64_t productOrLargest(std::uint64_t a, std::uint64_t b) {
    std::int64_t product = 0;
    return __builtin_mul_overflow(a, b, &product) ? std::numeric_limits<std::int64_t>::max() : product;
}

}  // namespace

std::string tidied(std::string_view text) {
    std::string line;
    for (const char c : text.substr(0, text.find('\0'))) {
        if (!isBlankOrControl(c))
            line += c;
        else if (!line.empty() && line.back() != ' ')
            line += ' ';
    }
    if (!line.empty() && line.back() == ' ') line.pop_back();
    return line;
}

std::optional<std::int64_t> wholeNumber(std::string_view text) {
    return parseNumber<std::int64_t>(trimmed(text));
}

std::optional<std::string> assignedValue(std::string_view text, std::string_view key) {
    std::optional<std::string> value;
    while (!text.empty()) {
        const std::string_view line = trimmed(takeLine(text));
        if (line.size() > key.size() && line.starts_with(key) && line[key.size()] == '=')
            value = unquoted(line.substr(key.size() + 1));
    }
    return value;
}

std::string processorName(std::string_view cpuinfo) {
    // In this order: x86 and 32-bit ARM, LoongArch, ARM boards, MIPS, POWER.
    for (const std::string_view key : {"model name", "Model Name", "Hardware", "cpu model", "cpu"})
        if (std::string name = tidied(valueOf(cpuinfo, key)); !name.empty()) return name;
    return {};
}

std::string chipOfDeviceTree(std::string_view compatible) {
    while (compatible.ends_with('\0')) compatible.remove_suffix(1);
    compatible.remove_prefix(compatible.rfind('\0') + 1);  // npos + 1 is 0: a single entry stays whole
    const std::size_t comma = compatible.find(',');
    return tidied(comma == std::string_view::npos ? compatible : compatible.substr(comma + 1));
}

std::string systemName(std::string_view osRelease) {
    std::string name = tidied(assignedValue(osRelease, "PRETTY_NAME").value_or(""));
    if (name.ends_with(')')) {
        const std::size_t open = name.rfind(" (");
        if (open != std::string::npos && open > 0) name.resize(open);
    }
    if (!name.empty()) return name;
    name = tidied(assignedValue(osRelease, "NAME").value_or(""));
    const std::string version = tidied(assignedValue(osRelease, "VERSION_ID").value_or(""));
    return name.empty() || version.empty() ? name : name + " " + version;
}

std::string kernelVersionText(std::string_view release) {
    std::array<std::optional<std::int64_t>, 3> parts;
    for (std::optional<std::int64_t>& part : parts) {
        const std::size_t end = std::min(release.find_first_not_of("0123456789"), release.size());
        part = parseNumber<std::int64_t>(release.substr(0, end));
        if (!part) break;
        release.remove_prefix(end);
        if (!release.starts_with('.')) break;
        release.remove_prefix(1);
    }
    if (!parts[0] || !parts[1]) return {};
    return versionText("Linux", *parts[0], *parts[1], parts[2].value_or(0));
}

std::optional<std::uint64_t> memoryField(std::string_view meminfo, std::string_view field) {
    constexpr std::uint64_t mostKibibytes = std::uint64_t{1} << 50;  // sums of fields stay far below 64 bits
    std::string_view value = valueOf(meminfo, field);
    const auto kibibytes = parseNumber<std::uint64_t>(takeWord(value));
    if (!kibibytes || *kibibytes > mostKibibytes || takeWord(value) != "kB") return std::nullopt;
    return *kibibytes * 1024;
}

std::optional<PageCounts> memoryCounts(std::string_view meminfo, std::uint64_t zramBytes) {
    const auto units = [meminfo](std::string_view field) {
        return memoryField(meminfo, field).value_or(0) / meminfoUnit;
    };
    if (!memoryField(meminfo, "Active(anon)") || !memoryField(meminfo, "Inactive(anon)")) return std::nullopt;

    PageCounts counts;
    for (const std::string_view field :
         {"Unevictable", "Hugetlb", "SUnreclaim", "KernelStack", "PageTables", "SecPageTables", "Percpu"})
        counts.wired += units(field);
    counts.active = units("Active(anon)") + units("Inactive(anon)");
    counts.compressor = units("Zswap") + zramBytes / meminfoUnit;
    return counts;
}

std::uint64_t zramMemory(std::string_view mmStat) {
    takeWord(mmStat);  // original size
    takeWord(mmStat);  // compressed size
    const std::uint64_t used = parseNumber<std::uint64_t>(takeWord(mmStat)).value_or(0);
    return used >> 60 == 0 ? used : 0;
}

std::optional<CPUTicks> processorTicks(std::string_view stat) {
    enum Field { user, nice, system, idle, iowait, irq, softirq, steal, fieldCount };
    while (!stat.empty()) {
        std::string_view line = takeLine(stat);
        if (takeWord(line) != "cpu") continue;
        std::array<double, fieldCount> ticks{};
        for (std::size_t i = 0; i < ticks.size(); ++i) {
            const auto value = parseNumber<std::uint64_t>(takeWord(line));
            if (!value && i <= idle) return std::nullopt;
            if (!value) break;  // older kernels have fewer columns
            ticks[i] = static_cast<double>(*value);
        }
        return CPUTicks{ticks[user], ticks[system] + ticks[irq] + ticks[softirq] + ticks[steal],
                        ticks[idle] + ticks[iowait], ticks[nice]};
    }
    return std::nullopt;
}

VolumeInfo volumeOfBlocks(std::uint64_t blockSize, std::uint64_t blocks, std::uint64_t available) {
    VolumeInfo volume;
    volume.total = productOrLargest(blockSize, blocks);
    volume.available = productOrLargest(blockSize, available);
    volume.importantAvailable = volume.available;
    return volume;
}

}  // namespace zelk
