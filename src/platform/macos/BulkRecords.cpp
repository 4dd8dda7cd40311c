// SPDX-License-Identifier: MIT
#include "platform/macos/BulkRecords.h"

#include <cstdint>
#include <cstring>
#include <optional>
#include <string_view>

namespace zelk {

namespace {

// Offsets of a record's fields, which are packed without padding. A record without file attributes, such as a
// directory's, ends its fixed part where others have the link count, followed by its name. The record of an entry with
// an error may have nothing but the name.
constexpr std::size_t lengthAt = 0;
constexpr std::size_t returnedCommonAt = 4;
constexpr std::size_t returnedFileAt = 16;
constexpr std::size_t nameReferenceAt = 24;
constexpr std::size_t nameReferenceBehindErrorAt = 28;
constexpr std::size_t deviceAt = 32;
constexpr std::size_t typeAt = 36;
constexpr std::size_t secondsAt = 40;
constexpr std::size_t nanosecondsAt = 48;
constexpr std::size_t fileIDAt = 56;
constexpr std::size_t linkCountAt = 64;
constexpr std::size_t allocatedSizeAt = 68;
constexpr std::size_t nameReferenceSize = 8;
constexpr std::size_t returnedSetEnd = 24;
constexpr std::size_t commonFixedPart = 64;
constexpr std::size_t fileFixedPart = 76;

// The kernel's constants, by its names; the first is in a header for kernel extensions only.
constexpr std::uint32_t VDIR = 2;
static_assert(VDIR == directoryObjectType);
constexpr std::uint32_t returnedName = 0x00000001;       // ATTR_CMN_NAME
constexpr std::uint32_t returnedDevice = 0x00000002;     // ATTR_CMN_DEVID
constexpr std::uint32_t returnedType = 0x00000008;       // ATTR_CMN_OBJTYPE
constexpr std::uint32_t returnedError = 0x20000000;      // ATTR_CMN_ERROR
constexpr std::uint32_t returnedAllocated = 0x00000004;  // ATTR_FILE_ALLOCSIZE

template <typename Value>
Value valueAt(std::span<const std::byte> record, std::size_t offset) {
    Value value;
    std::memcpy(&value, record.data() + offset, sizeof value);
    return value;
}

/// A name and the length that its reference states, including the terminator.
struct ReferredName {
    std::string_view name;
    std::uint32_t length;
};

/// Follows the reference at `place`, if it and the name's terminator are within the record and the name is a valid file
/// name. A slash (from a damaged file system) would turn it into a path that may lead out of the tree.
std::optional<ReferredName> nameBy(std::span<const std::byte> record, std::size_t place) {
    if (record.size() < place + nameReferenceSize) return std::nullopt;
    const std::int64_t start = static_cast<std::int64_t>(place) + valueAt<std::int32_t>(record, place);
    if (start < 0 || start >= static_cast<std::int64_t>(record.size())) return std::nullopt;
    const std::span<const std::byte> rest = record.subspan(static_cast<std::size_t>(start));
    const void* end = std::memchr(rest.data(), 0, rest.size());
    if (end == nullptr) return std::nullopt;
    const auto length = static_cast<std::size_t>(static_cast<const std::byte*>(end) - rest.data());
    const std::string_view name(reinterpret_cast<const char*>(rest.data()), length);
    if (name.empty() || name.find('/') != std::string_view::npos) return std::nullopt;
    return ReferredName{name, valueAt<std::uint32_t>(record, place + 4)};
}

std::optional<std::string_view> nameOf(std::span<const std::byte> record) {
    const auto common = valueAt<std::uint32_t>(record, returnedCommonAt);
    if ((common & returnedName) == 0) return std::nullopt;
    if ((common & returnedError) != 0) {
        // An error number precedes the name. It was not requested, so it may be missing: accept the reference behind it
        // only if its length matches the name.
        const auto behind = nameBy(record, nameReferenceBehindErrorAt);
        if (behind && behind->length == behind->name.size() + 1) return behind->name;
    }
    const auto referred = nameBy(record, nameReferenceAt);
    return referred ? std::optional(referred->name) : std::nullopt;
}

/// The first record in `rest`, if it is long enough to say what it contains.
std::optional<std::span<const std::byte>> firstRecord(std::span<const std::byte> rest) {
    if (rest.size() < returnedSetEnd) return std::nullopt;
    const auto length = valueAt<std::uint32_t>(rest, lengthAt);
    if (length < returnedSetEnd || length > rest.size()) return std::nullopt;
    return rest.first(length);
}

/// Decodes the entry `name`, if `record` is long enough for the attributes it claims.
std::optional<DirEntry> entryOf(std::span<const std::byte> record, std::string_view name,
                                const ListedDirectory& listed) {
    DirEntry entry{.name = name,
                   .objType = directoryObjectType,
                   .fileID = 0,
                   .linkCount = 0,
                   .allocSize = 0,
                   .deviceID = listed.device,
                   .modTime = listed.modified};
    const auto common = valueAt<std::uint32_t>(record, returnedCommonAt);
    if ((common & returnedType) == 0 || (common & returnedError) != 0) return entry;
    if (record.size() < commonFixedPart) return std::nullopt;
    entry.objType = valueAt<std::uint32_t>(record, typeAt);
    entry.fileID = valueAt<std::uint64_t>(record, fileIDAt);
    if ((common & returnedDevice) != 0) entry.deviceID = valueAt<std::int32_t>(record, deviceAt);
    entry.modTime = static_cast<double>(valueAt<std::int64_t>(record, secondsAt)) +
                    static_cast<double>(valueAt<std::int64_t>(record, nanosecondsAt)) / 1e9;

    const auto file = valueAt<std::uint32_t>(record, returnedFileAt);
    if (entry.objType == VDIR || (file & returnedAllocated) == 0) return entry;
    if (record.size() < fileFixedPart) return std::nullopt;
    entry.linkCount = valueAt<std::uint32_t>(record, linkCountAt);
    entry.allocSize = valueAt<std::uint64_t>(record, allocatedSizeAt);
    return entry;
}

}  // namespace

bool decodeBulkRecords(std::span<const std::byte> buffer, std::size_t count, const ListedDirectory& listed,
                       DirectoryReader::Entries& entries) {
    for (; count > 0; --count) {
        const auto record = firstRecord(buffer);
        if (!record) return false;
        const auto name = nameOf(*record);
        if (!name) return false;
        buffer = buffer.subspan(record->size());
        if (*name == "." || *name == "..") continue;
        const auto entry = entryOf(*record, *name, listed);
        if (!entry) return false;
        entries.push_back(*entry);
    }
    return true;
}

}  // namespace zelk
