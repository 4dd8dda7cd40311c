// SPDX-License-Identifier: MIT
#include "scan/FileType.h"

#include <iterator>

namespace zelk {

namespace {

struct ExtensionRow {
    std::string_view extension;
    FileType type;
};

// Every extension with a type; all others are `other`.
constexpr ExtensionRow fileTypeByExtension[] = {
    {"mp4", FileType::video},
    {"mov", FileType::video},
    {"m4v", FileType::video},
    {"avi", FileType::video},
    {"mkv", FileType::video},
    {"webm", FileType::video},
    {"flv", FileType::video},
    {"wmv", FileType::video},
    {"mpg", FileType::video},
    {"mpeg", FileType::video},
    {"3gp", FileType::video},
    {"m2ts", FileType::video},
    {"ts", FileType::video},
    {"mp3", FileType::audio},
    {"m4a", FileType::audio},
    {"wav", FileType::audio},
    {"aac", FileType::audio},
    {"flac", FileType::audio},
    {"aiff", FileType::audio},
    {"aif", FileType::audio},
    {"ogg", FileType::audio},
    {"wma", FileType::audio},
    {"caf", FileType::audio},
    {"jpg", FileType::image},
    {"jpeg", FileType::image},
    {"png", FileType::image},
    {"gif", FileType::image},
    {"heic", FileType::image},
    {"heif", FileType::image},
    {"tiff", FileType::image},
    {"tif", FileType::image},
    {"bmp", FileType::image},
    {"webp", FileType::image},
    {"raw", FileType::image},
    {"cr2", FileType::image},
    {"cr3", FileType::image},
    {"nef", FileType::image},
    {"arw", FileType::image},
    {"dng", FileType::image},
    {"psd", FileType::image},
    {"svg", FileType::image},
    {"zip", FileType::archive},
    {"tar", FileType::archive},
    {"gz", FileType::archive},
    {"tgz", FileType::archive},
    {"bz2", FileType::archive},
    {"xz", FileType::archive},
    {"7z", FileType::archive},
    {"rar", FileType::archive},
    {"zst", FileType::archive},
    {"pkg", FileType::archive},
    {"xip", FileType::archive},
    {"dmg", FileType::diskImage},
    {"iso", FileType::diskImage},
    {"sparseimage", FileType::diskImage},
    {"sparsebundle", FileType::diskImage},
    {"img", FileType::diskImage},
    {"cdr", FileType::diskImage},
    {"pdf", FileType::document},
    {"doc", FileType::document},
    {"docx", FileType::document},
    {"xls", FileType::document},
    {"xlsx", FileType::document},
    {"ppt", FileType::document},
    {"pptx", FileType::document},
    {"pages", FileType::document},
    {"numbers", FileType::document},
    {"key", FileType::document},
    {"txt", FileType::document},
    {"md", FileType::document},
    {"rtf", FileType::document},
    {"csv", FileType::document},
    {"epub", FileType::document},
    {"json", FileType::document},
    {"xml", FileType::document},
};
static_assert(std::size(fileTypeByExtension) == 75);

// The extensions of listed disk images. These differ from FileType::diskImage: a virtual machine's disk counts as
// `other` and a camera's "raw" as an image, yet large ones are worth listing; "cdr" and "sparsebundle" are not.
constexpr std::string_view diskImageExtensions[] = {"dmg", "iso", "img", "qcow2", "vmdk", "vdi", "raw", "sparseimage"};

// Packs an extension of up to eight bytes into one integer, so that the lookup for every file of a drive compares no
// strings. Zero means none.
constexpr std::uint64_t pack(std::string_view text) {
    std::uint64_t packed = 0;
    for (const char c : text) packed = packed << 8 | static_cast<unsigned char>(c);
    return packed;
}

struct PackedRow {
    std::uint64_t extension = 0;
    NameClass name;
};

constexpr std::size_t tableSlots = 256;  // at most a third full, so a miss usually ends at the first slot

constexpr std::size_t slotOf(std::uint64_t packed) {
    return packed * 0x9E3779B97F4A7C15U >> 56;
}

consteval std::array<PackedRow, tableSlots> buildTable() {
    std::array<PackedRow, tableSlots> table{};
    const auto row = [&table](std::string_view extension) -> PackedRow& {
        std::size_t slot = slotOf(pack(extension));
        while (table[slot].extension != 0 && table[slot].extension != pack(extension)) slot = (slot + 1) % tableSlots;
        table[slot].extension = pack(extension);
        return table[slot];
    };
    for (const ExtensionRow& known : fileTypeByExtension)
        if (known.extension.size() <= 8) row(known.extension).name.type = known.type;
    for (const std::string_view extension : diskImageExtensions)
        if (extension.size() <= 8) row(extension).name.canBeDiskImage = true;
    return table;
}

constexpr auto table = buildTable();

constexpr char lowerCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// The part after the last dot, unchanged; empty without an extension.
std::string_view extensionPart(std::string_view name) {
    const std::size_t dot = name.rfind('.');
    if (dot == std::string_view::npos || dot == 0) return {};
    return name.substr(dot + 1);
}

constexpr std::string_view kelvinSign = "\xE2\x84\xAA";

NameClass classifySlowly(std::string_view name) {
    const std::string extension = fileExtension(name);
    NameClass result;
    for (const ExtensionRow& known : fileTypeByExtension)
        if (known.extension == extension) result.type = known.type;
    for (const std::string_view known : diskImageExtensions)
        if (known == extension) result.canBeDiskImage = true;
    return result;
}

constexpr std::string_view rawValues[] = {"video", "audio", "image", "archive", "diskImage", "document", "other"};

}  // namespace

std::string_view rawValue(FileType type) {
    return rawValues[static_cast<std::size_t>(type)];
}

std::optional<FileType> fileTypeFromRawValue(std::string_view text) {
    for (const FileType type : allFileTypes)
        if (rawValue(type) == text) return type;
    return std::nullopt;
}

std::string fileExtension(std::string_view name) {
    const std::string_view part = extensionPart(name);
    std::string extension;
    for (std::size_t i = 0; i < part.size(); ++i) {
        if (part.substr(i).starts_with(kelvinSign)) {
            extension += 'k';
            i += kelvinSign.size() - 1;
        } else {
            extension += lowerCase(part[i]);
        }
    }
    return extension;
}

NameClass classifyName(std::string_view name) {
    const std::string_view part = extensionPart(name);
    if (part.empty()) return {};
    std::uint64_t packed = 0;
    bool plain = part.size() <= 8;
    for (std::size_t i = 0; plain && i < part.size(); ++i) {
        plain = static_cast<signed char>(part[i]) > 0;
        packed = packed << 8 | static_cast<unsigned char>(lowerCase(part[i]));
    }
    if (!plain) {
        // Longer than any known extension, even with a three-byte Kelvin sign for every k.
        return part.size() > 36 ? NameClass{} : classifySlowly(name);
    }
    for (std::size_t slot = slotOf(packed); table[slot].extension != 0; slot = (slot + 1) % tableSlots)
        if (table[slot].extension == packed) return table[slot].name;
    return {};
}

}  // namespace zelk
