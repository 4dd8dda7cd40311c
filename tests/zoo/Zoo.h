// SPDX-License-Identifier: MIT
// Hostile trees for tests. All functions throw std::system_error if the tree cannot be created.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zelk::zoo {

/// Creates the folder `path` and its missing parents.
void makeFolder(const std::string& path);
/// Creates the file `path` with `bytes` bytes of content, and its missing parents.
void makeFile(const std::string& path, std::size_t bytes = 0);
/// Creates the file `path` with `bytes` bytes allocated but no content.
void allocateFile(const std::string& path, std::int64_t bytes);

/// A file of 1 MiB with three names in two folders, and one whose second name is in `outside`.
void makeHardLinks(const std::string& folder, const std::string& outside);
/// Links to themselves, to each other, to their folder, to nowhere, to "/" and to `outside`.
void makeLinks(const std::string& folder, const std::string& outside);
/// Files and folders whose names are not UTF-8, contain line feeds, have the maximum length, or consist of dots.
void makeNames(const std::string& folder);
/// A sparse file, a file shorter than its allocation, and one of a single byte.
void makeUnequalSizes(const std::string& folder);
/// A pipe, a socket and, as root, device files.
void makeSpecialFiles(const std::string& folder);
/// Folders with the permissions 000, 111 and 444, each with a file and a folder in it, and an empty one with 444.
void makeUnreadable(const std::string& folder);
inline constexpr std::int64_t unreadableFolders = 3;  ///< the empty one can be read
/// `depth` nested folders with names of `nameLength` bytes, and a file in each.
void makeChain(const std::string& folder, std::size_t depth, std::size_t nameLength);
/// `files` empty files and `folders` empty folders in one folder.
void makeWide(const std::string& folder, std::size_t files, std::size_t folders);

/// All of the above below `folder`: 3,000 entries in its widest folder, and `chain` nested folders with names of 200
/// bytes, which exceeds PATH_MAX from 21 on. `outside` is elsewhere on the same file system and holds the targets of
/// links.
void makeZoo(const std::string& folder, const std::string& outside, std::size_t chain);

/// A random tree of `folders` folders: depth, files, sizes, hard links and links are random. Reproducible by `seed`.
void makeRandomTree(const std::string& folder, std::uint64_t seed, std::size_t folders);

}  // namespace zelk::zoo
