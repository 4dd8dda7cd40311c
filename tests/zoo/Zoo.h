// SPDX-License-Identifier: MIT
// Hostile trees for tests: what a stranger's disk may hold. All functions throw std::system_error where the tree cannot
// be made.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zelk::zoo {

/// Creates `path` and what is missing above it.
void makeFolder(const std::string& path);
/// Creates the file `path` with `bytes` bytes of content, and what is missing above it.
void makeFile(const std::string& path, std::size_t bytes = 0);
/// Creates the file `path` with `bytes` allocated on the disk and no content written.
void allocateFile(const std::string& path, std::int64_t bytes);

/// One file of 1 MiB under three names in two folders, and one whose second name lies in `outside`.
void makeHardLinks(const std::string& folder, const std::string& outside);
/// Links to themselves, to each other, to the folder they are in, to nowhere, to "/" and to `outside`.
void makeLinks(const std::string& folder, const std::string& outside);
/// Names that are no text, no single line, as long as a name may be, or made of dots; of files and of folders.
void makeNames(const std::string& folder);
/// A file that is nearly all hole, one shorter than what it has allocated, one with a single byte.
void makeUnequalSizes(const std::string& folder);
/// A pipe, a socket and, as root, device files.
void makeSpecialFiles(const std::string& folder);
/// Folders of the permissions 000, 111 and 444, with a file and a folder in each, and an empty one of 444.
void makeUnreadable(const std::string& folder);
inline constexpr std::int64_t unreadableFolders = 3;  ///< the empty one can be read
/// `depth` folders one inside the other, names of `nameLength` bytes, a file in each.
void makeChain(const std::string& folder, std::size_t depth, std::size_t nameLength);
/// `files` empty files and `folders` empty folders in one folder.
void makeWide(const std::string& folder, std::size_t files, std::size_t folders);

/// All of the above below `folder`: 3,000 entries in its widest folder, and a chain of `chain` folders whose names are
/// 200 bytes long, which is past PATH_MAX from 21 on. `outside` lies elsewhere on the same file system; what is linked
/// to stands there.
void makeZoo(const std::string& folder, const std::string& outside, std::size_t chain);

/// A tree of `folders` folders in which chance decides the depth, the files, their sizes, the hard links and the links.
/// The same seed gives the same tree.
void makeRandomTree(const std::string& folder, std::uint64_t seed, std::size_t folders);

}  // namespace zelk::zoo
