// SPDX-License-Identifier: MIT
// Reads and writes small user files that must survive a crash, a full disk and a power loss. Paths are bytes.
// Everything here blocks, and is safe from any thread and in several processes at once.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace zelk {

/// Atomically replaces or creates the file at `path`, readable by its owner only, with this content; see ReplacedFile.
/// At every moment the old or the new content is there, whole. False leaves the old content and no temporary file.
bool replaceFileDurably(const std::string& path, std::string_view content);

/// No file of Zelk is larger, and a damaged one must not exhaust memory.
inline constexpr std::size_t largestWholeFile = std::size_t{256} << 20;

/// Reads a regular file, following links; absent on any failure, and above `most` bytes. Never blocks on a pipe.
std::optional<std::string> readWholeFile(const std::string& path, std::size_t most = largestWholeFile);

/// Reads the first `most` bytes of a regular file, following links; absent on any failure. Never blocks on a pipe.
std::optional<std::string> readFileStart(const std::string& path, std::size_t most);

/// Creates `path` and its missing parents for the user only (0700). True if `path` is a directory afterwards.
bool createDirectoryTree(const std::string& path);

}  // namespace zelk
