// SPDX-License-Identifier: MIT
// Files in memory of which some are the same.
#pragma once

#include <string>

#include "fakes/FakePlatform.h"

namespace zelk::fakes {

inline void addFilled(FakePlatform& machine, const std::string& path, char letter, std::size_t size = 2'000'000) {
    machine.files.addFile(path, std::string(size, letter));
}

/// Two sets below "/home/me": "copies/film.mov" with "film 2.mov" and "film 3.mov" beside it, of 3 MB each, and
/// "papers/a.pdf" with "papers/b.pdf", of 2 MB each. And a file of 3 MB that is like no other.
inline void fillWithDuplicates(FakePlatform& machine) {
    for (const char* name : {"film.mov", "film 2.mov", "film 3.mov"})
        addFilled(machine, std::string("/home/me/copies/") + name, 'f', 3'000'000);
    for (const char* name : {"a.pdf", "b.pdf"}) addFilled(machine, std::string("/home/me/papers/") + name, 'p');
    addFilled(machine, "/home/me/papers/other.pdf", 'o', 3'000'000);
}

}  // namespace zelk::fakes
