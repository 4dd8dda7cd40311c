// SPDX-License-Identifier: MIT
// What a file is and on which mount it lies: on Linux two mounts of one device have the same device number, so the
// mount's own number is what tells whether a step leads into another one. macOS has no such mounts and no such number;
// there it is the device's.
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
    std::uint64_t mount = 0;  ///< unique among the mounts of the moment
    mode_t mode = 0;
    uid_t owner = 0;

    bool isDirectory() const { return S_ISDIR(mode); }
    bool isSameFile(const FileStatus& other) const { return device == other.device && inode == other.inode; }
    /// Whether what lies in one directory can be moved into the other.
    bool isOnVolumeOf(const FileStatus& other) const { return device == other.device && mount == other.mount; }
};

/// Of what the descriptor is open on. Absent, with errno set, on a failure.
std::optional<FileStatus> fileStatus(int descriptor);
/// Of `name` in the directory `folder`, its own self where it is a link. On Linux no mount is woken by asking.
std::optional<FileStatus> fileStatus(int folder, const std::string& name);

/// Opens the subdirectory `name` of `parent`, which must be neither a link nor on another mount (errno EXDEV). -1, with
/// errno set, on a failure.
int openSubdirectoryOnMount(int parent, std::string_view name);
/// The same where no call of the system does it at once: looked at before it is opened, so that what is mounted is
/// never woken, and after, because it may have been swapped.
int openAndCompareMounts(int parent, const std::string& name);

/// The path, without links, that leads to the directory now; absent if it is longer than the system can tell.
std::optional<std::string> pathOfDirectory(int descriptor);

/// What is mounted; empty where the system does not tell.
std::vector<Mount> mountTable();

}  // namespace zelk
