// SPDX-License-Identifier: MIT
// Reads and writes small user files that must survive a crash, a full disk and a power loss. Paths are bytes.
// Everything here blocks, and is safe from any thread and in several processes at once.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace zelk {

/// Atomically replaces or creates the file at `path`; its folder must exist. At every moment the old or the new content
/// is there, whole.
///
/// - Follows a symbolic link and replaces its target, since users link such files into place. A dangling link creates
///   its target.
/// - Replaces regular files only: a folder, pipe or device is a failure.
/// - Creates files readable by their owner only (0600); keeps the permissions of existing ones.
/// - False leaves the old content and no temporary file. The next write into the same folder removes the temporary file
///   of a killed writer.
/// - True means that readers see the new content. It is also on the disk, unless the system refuses to flush the
///   folder; then a power loss may restore the old content, whole. That is not a failure, since false promises that the
///   old content is in place.
/// - With two concurrent writers the later rename wins; contents never mix.
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
