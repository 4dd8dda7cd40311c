// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

namespace zelk::bench {

/// Makes a file that begins with `start`, and the folders above it.
inline void makeFile(const std::filesystem::path& file, const std::string& start, std::uintmax_t size) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << start;
    std::filesystem::resize_file(file, size);
}

/// Makes pairs of equal sparse files of 2 MB.
inline void makeSets(const std::filesystem::path& home, int count) {
    for (int number = 0; number < count; ++number) {
        const std::string name = "film " + std::to_string(number);
        for (const char* folder : {"films", "films to sort"})
            makeFile(home / folder / name, name, 2'000'000 + static_cast<std::uintmax_t>(number));
    }
}

/// Makes AppImages with an entry each.
inline void makeApps(const std::filesystem::path& home, int count) {
    const std::filesystem::path entries = home / ".local/share/applications";
    std::filesystem::create_directories(entries);
    for (int number = 0; number < count; ++number) {
        const std::string name = "Program " + std::to_string(number);
        const std::filesystem::path image = home / "Applications" / (name + ".AppImage");
        makeFile(image, std::string("\177ELF\2\1\1\0AI\2", 11), 100'000);
        std::filesystem::permissions(image, std::filesystem::perms::owner_all);
        std::ofstream(entries / (name + ".desktop")) << "[Desktop Entry]\nType=Application\nName=" << name
                                                     << "\nExec=\"" << image.string() << "\"\nIcon=text-editor\n";
    }
}

/// Makes caches in folders below `work`.
inline void makeItems(const std::filesystem::path& home, int count) {
    for (int number = 0; number < count; ++number)
        makeFile(home / "work" / ("project " + std::to_string(number)) / "__pycache__/a.pyc", std::string(1000, 'x'),
                 1000);
}

}  // namespace zelk::bench
