// SPDX-License-Identifier: MIT
// The seven types of files, derived from the name only.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zelk {

enum class FileType : std::uint8_t { video, audio, image, archive, diskImage, document, other };

inline constexpr std::array allFileTypes{FileType::video,     FileType::audio,    FileType::image, FileType::archive,
                                         FileType::diskImage, FileType::document, FileType::other};

/// The stable name of a type, used as a key in the history.
std::string_view rawValue(FileType type);
/// Absent if `text` names no type.
std::optional<FileType> fileTypeFromRawValue(std::string_view text);

/// The part after the last dot, with ASCII letters (and the Kelvin sign, whose lower case is ASCII) in lower case.
/// Empty without a dot, or with only a leading or trailing one.
std::string fileExtension(std::string_view name);

/// The classification of a file by its name.
struct NameClass {
    FileType type = FileType::other;
    bool canBeDiskImage = false;  ///< may be listed as a disk image; a different set than FileType::diskImage
};

/// Equivalent to looking up fileExtension(name) in both tables, without building a string.
NameClass classifyName(std::string_view name);

/// The bytes and count of the files of one type.
struct TypeTally {
    std::int64_t bytes = 0;
    std::int64_t count = 0;

    bool operator==(const TypeTally&) const = default;
};

/// A map from FileType to TypeTally as an array; a type with a count of 0 is not contained.
class TypeTotals {
public:
    TypeTally& operator[](FileType type) { return tallies_[static_cast<std::size_t>(type)]; }
    const TypeTally& operator[](FileType type) const { return tallies_[static_cast<std::size_t>(type)]; }
    bool contains(FileType type) const { return (*this)[type].count != 0; }
    bool empty() const {
        for (const FileType type : allFileTypes)
            if (contains(type)) return false;
        return true;
    }
    bool operator==(const TypeTotals&) const = default;

private:
    std::array<TypeTally, allFileTypes.size()> tallies_{};
};

}  // namespace zelk
