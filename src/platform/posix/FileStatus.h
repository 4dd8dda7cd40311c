// SPDX-License-Identifier: MIT
// The identity of a file and of its mount. On Linux two mounts of one device share its device number, so only the mount
// id shows whether a step enters another mount. macOS has no such mounts; there the mount id is the device number.
#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/posix/MountTable.h"

namespace zelk {

struct FileStatus {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::uint64_t mount = 0;  ///< unique among the current mounts
    mode_t mode = 0;
    uid_t owner = 0;

    bool isDirectory() const { return S_ISDIR(mode); }
    bool isSameFile(const FileStatus& other) const { return device == other.device && inode == other.inode; }
    /// Whether entries of one directory can be renamed into the other.
    bool isOnVolumeOf(const FileStatus& other) const { return device == other.device && mount == other.mount; }
};

/// The status of an open file. Absent, with errno set, on failure.
std::optional<FileStatus> fileStatus(int descriptor);
/// The status of `name` in `folder`, not following links. On Linux this triggers no automount.
std::optional<FileStatus> fileStatus(int folder, const std::string& name);

/// Opens the subdirectory `name` of `parent`, which must be neither a link nor on another mount (errno EXDEV). Returns
/// -1 with errno set on failure.
int openSubdirectoryOnMount(int parent, std::string_view name);
/// Like openSubdirectoryOnMount() without a system call for it: checks the mount before opening, so that no automount
/// is triggered, and after, in case it was swapped.
int openAndCompareMounts(int parent, const std::string& name);

/// The current path of an open directory, without links; absent if the system cannot return it because of its length.
std::optional<std::string> pathOfDirectory(int descriptor);

/// The mounted file systems; empty if unknown.
std::vector<Mount> mountTable();

}  // namespace zelk
