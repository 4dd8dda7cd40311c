// SPDX-License-Identifier: MIT
// The seven classes of files, told by the name alone.
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

/// The stable name of a type, which the history stores as a key.
std::string_view rawValue(FileType type);
/// Absent for a text that names no type.
std::optional<FileType> fileTypeFromRawValue(std::string_view text);

/// What stands behind the last dot, its ASCII letters (and the Kelvin sign, whose lower case is ASCII too) in lower
/// case. Empty without a dot, with a dot only in front, and with a dot at the end.
std::string fileExtension(std::string_view name);

/// What the name alone says of a file.
struct NameClass {
    FileType type = FileType::other;
    bool canBeDiskImage = false;  ///< may enter the list of disk images; not the same set as FileType::diskImage
};

/// Equal to looking fileExtension(name) up in the two tables, without building a text.
NameClass classifyName(std::string_view name);

/// Bytes and number of the files of one type.
struct TypeTally {
    std::int64_t bytes = 0;
    std::int64_t count = 0;

    bool operator==(const TypeTally&) const = default;
};

/// A dictionary from FileType to TypeTally without the dictionary: a type with a count of 0 is not in it.
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
