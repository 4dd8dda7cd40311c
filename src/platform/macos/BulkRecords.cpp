// SPDX-License-Identifier: MIT
#include "platform/macos/BulkRecords.h"

#include <cstdint>
#include <cstring>
#include <optional>
#include <string_view>

namespace zelk {

namespace {

// Where the fields of a record stand. They are packed without padding, hence the odd places behind the link count. A
// directory's record has no file attributes: its fixed part ends where the link count of any other begins, and what
// stands there are bytes of its name.
constexpr std::size_t lengthAt = 0;
constexpr std::size_t nameReferenceAt = 24;
constexpr std::size_t deviceAt = 32;
constexpr std::size_t typeAt = 36;
constexpr std::size_t secondsAt = 40;
constexpr std::size_t nanosecondsAt = 48;
constexpr std::size_t fileIDAt = 56;
constexpr std::size_t linkCountAt = 64;
constexpr std::size_t allocatedSizeAt = 68;
constexpr std::size_t directoryFixedPart = 64;
constexpr std::size_t fileFixedPart = 76;

// The kernel's own constant stands in a header that only its extensions may include.
constexpr std::uint32_t VDIR = 2;
static_assert(VDIR == directoryObjectType);

template <typename Value>
Value valueAt(std::span<const std::byte> record, std::size_t offset) {
    Value value;
    std::memcpy(&value, record.data() + offset, sizeof value);
    return value;
}

/// The name, if its reference and its end lie within the record and it is one that a file can have. A slash in it (from
/// a broken file system) would make a path of it, which could lead out of the tree.
std::optional<std::string_view> nameOf(std::span<const std::byte> record) {
    const std::int64_t start =
        static_cast<std::int64_t>(nameReferenceAt) + valueAt<std::int32_t>(record, nameReferenceAt);
    if (start < 0 || start >= static_cast<std::int64_t>(record.size())) return std::nullopt;
    const std::span<const std::byte> rest = record.subspan(static_cast<std::size_t>(start));
    const void* end = std::memchr(rest.data(), 0, rest.size());
    if (end == nullptr) return std::nullopt;
    const auto length = static_cast<std::size_t>(static_cast<const std::byte*>(end) - rest.data());
    const std::string_view name(reinterpret_cast<const char*>(rest.data()), length);
    if (name.empty() || name.find('/') != std::string_view::npos) return std::nullopt;
    return name;
}

/// The bytes of the record that `rest` begins with, if there is one with its whole fixed part.
std::optional<std::span<const std::byte>> firstRecord(std::span<const std::byte> rest) {
    if (rest.size() < directoryFixedPart) return std::nullopt;
    const auto length = valueAt<std::uint32_t>(rest, lengthAt);
    if (length < directoryFixedPart || length > rest.size()) return std::nullopt;
    const std::span<const std::byte> record = rest.first(length);
    if (valueAt<std::uint32_t>(record, typeAt) != VDIR && length < fileFixedPart) return std::nullopt;
    return record;
}

}  // namespace

bool decodeBulkRecords(std::span<const std::byte> buffer, std::size_t count, std::vector<DirEntry>& entries) {
    for (; count > 0; --count) {
        const auto record = firstRecord(buffer);
        if (!record) return false;
        const auto name = nameOf(*record);
        if (!name) return false;
        buffer = buffer.subspan(record->size());
        if (*name == "." || *name == "..") continue;

        const auto type = valueAt<std::uint32_t>(*record, typeAt);
        const bool isFile = type != VDIR;
        entries.push_back({.name = *name,
                           .objType = type,
                           .fileID = valueAt<std::uint64_t>(*record, fileIDAt),
                           .linkCount = isFile ? valueAt<std::uint32_t>(*record, linkCountAt) : 0,
                           .allocSize = isFile ? valueAt<std::uint64_t>(*record, allocatedSizeAt) : 0,
                           .deviceID = valueAt<std::int32_t>(*record, deviceAt),
                           .modTime = static_cast<double>(valueAt<std::int64_t>(*record, secondsAt)) +
                                      static_cast<double>(valueAt<std::int64_t>(*record, nanosecondsAt)) / 1e9});
    }
    return true;
}

}  // namespace zelk
