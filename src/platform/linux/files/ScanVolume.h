// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "platform/linux/files/StatxEntry.h"
#include "platform/posix/PosixRoot.h"

namespace zelk {

/// Decides which folders belong to the volume of a scan root. Usually these have its device number. On btrfs,
/// subvolumes have device numbers of their own although they are ordinary folders without a mount.
class ScanVolume {
public:
    ScanVolume() = default;
    /// For the root that `descriptor` refers to.
    explicit ScanVolume(int descriptor);

    /// Replaces the device number of a folder on this volume by the root's, by which a scan recognizes it. `entry`
    /// describes the folder `name` in `directory`. Costs a system call only at the top of a subvolume.
    void claim(int directory, const char* name, std::uint64_t mount, DirEntry& entry) const {
        if (mount_ && entry.deviceID != device_ && holds(directory, name, mount, entry.fileID))
            entry.deviceID = device_;
    }
    /// Like claim(), for the reader's current folder.
    void claimOwn(DirEntry& entry) const {
        if (mount_) entry.deviceID = device_;
    }

private:
    bool holds(int directory, const char* name, std::uint64_t mount, std::uint64_t inode) const;

    std::int32_t device_ = 0;
    std::optional<std::uint64_t> mount_;  ///< set on file systems with subvolumes
};

class LinuxRoot : public PosixRoot {
public:
    /// Takes ownership of `descriptor`.
    explicit LinuxRoot(int descriptor) : PosixRoot(descriptor), volume(descriptor) {}

    const ScanVolume volume;
};

}  // namespace zelk
