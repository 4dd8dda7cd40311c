// SPDX-License-Identifier: MIT
// Small files of the user's own that must outlive a crash, a full disk and a loss of power. Paths are bytes. Everything
// here blocks and is safe from any thread and in several processes at once.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zelk {

/// Replaces the file at `path` by `content`, or creates it; the folder must exist. At every moment the old or the new
/// content is there, whole.
///
/// - A symbolic link stays, and what it points to is replaced: people keep such files in a folder of their own and link
///   them into place. A link to nothing creates the file it names.
/// - Nothing but a regular file is replaced: a folder, pipe or device is a failure.
/// - A new file is readable by its owner alone (0600); an existing one keeps its permissions.
/// - False leaves the old content and removes the temporary file. What a killed writer left behind, the next write into
///   the same folder removes.
/// - True means that the new content is what a reader finds. It is also on the disk, unless the system refuses to flush
///   the folder: then a loss of power may bring the old content back, whole. That is not reported as a failure, for
///   false promises that the old content is in place.
/// - Of two writers at once the later rename wins; neither mixes with the other.
bool replaceFileDurably(const std::string& path, std::string_view content);

/// The whole content of a regular file, links followed; absent on any failure, and above 256 MiB: no file of this
/// application's is that large, and a damaged one must not take the memory. Never waits on a pipe.
std::optional<std::string> readWholeFile(const std::string& path);

/// Creates `path` and what is missing above it, for the user alone (0700). True if it is a directory afterwards.
bool createDirectoryTree(const std::string& path);

}  // namespace zelk
