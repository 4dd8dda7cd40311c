// SPDX-License-Identifier: MIT
// A home with a few heavy files of several types and ages, in memory and, for the Trash, as files too.
#pragma once

#include <string>

#include "fakes/FakePlatform.h"

namespace zelk::fakes {

/// Largest first "concert.mov", "setup.iso", "backup.zip", "old.mp4", "notes.pdf"; oldest first "old.mp4" (3 years),
/// "backup.zip" (60 days), "notes.pdf" (2 days), "concert.mov" (1 day), "setup.iso" (now). By type: video (two files),
/// disk images, archives, documents.
inline void fillWithClutter(FakePlatform& machine, const std::string& home) {
    const auto file = [&](const char* below, std::uint64_t bytes, double days) {
        const std::string path = home + below;
        machine.directories.file(path, bytes, machine.clock.now() - days * secondsPerDay);
        machine.files.addFile(path);
    };
    file("/media/concert.mov", 4'000'000'000, 1);
    file("/media/setup.iso", 2'000'000'000, 0);
    file("/backup.zip", 900'000'000, 60);
    file("/old.mp4", 800'000'000, 3 * 365);
    file("/papers/notes.pdf", 700'000'000, 2);
}

}  // namespace zelk::fakes
