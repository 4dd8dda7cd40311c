// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "platform/linux/files/StatxEntry.h"
#include "platform/posix/PosixRoot.h"

namespace zelk {

/// What belongs to the volume of a scan root. Ordinarily that is what has its device number. On btrfs a subvolume has
/// one of its own although it is a folder like any other: no mount is between them.
class ScanVolume {
public:
    ScanVolume() = default;
    /// Of the root that `descriptor` is open on.
    explicit ScanVolume(int descriptor);

    /// Gives a folder of the volume the root's device number, which is how a scan knows it. `entry` is that of the
    /// folder `name` in `directory`. Costs a system call only where a subvolume begins.
    void claim(int directory, const char* name, std::uint64_t mount, DirEntry& entry) const {
        if (mount_ && entry.deviceID != device_ && holds(directory, name, mount, entry.fileID))
            entry.deviceID = device_;
    }
    /// The same for the folder that a reader stands in.
    void claimOwn(DirEntry& entry) const {
        if (mount_) entry.deviceID = device_;
    }

private:
    bool holds(int directory, const char* name, std::uint64_t mount, std::uint64_t inode) const;

    std::int32_t device_ = 0;
    std::optional<std::uint64_t> mount_;  ///< set where there can be subvolumes
};

class LinuxRoot : public PosixRoot {
public:
    /// Takes `descriptor` over.
    explicit LinuxRoot(int descriptor) : PosixRoot(descriptor), volume(descriptor) {}

    const ScanVolume volume;
};

}  // namespace zelk
