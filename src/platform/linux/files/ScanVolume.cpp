// SPDX-License-Identifier: MIT
#include "platform/linux/files/ScanVolume.h"

#include <fcntl.h>
#include <linux/btrfs.h>
#include <sys/ioctl.h>
#include <sys/vfs.h>

#include <algorithm>
#include <iterator>

#include "platform/posix/Descriptor.h"

namespace zelk {

namespace {

// Not in every system's headers, or not by these names.
constexpr std::uint64_t btrfsMagic = 0x9123683E;
constexpr std::uint64_t subvolumeInode = 256;  // the top folder of every subvolume, and nothing else
constexpr std::uint64_t readOnlyFlag = 1;      // in the on-disk format

bool isOnBtrfs(int descriptor) {
    struct statfs system {};
    const int result = uninterrupted([&] { return ::fstatfs(descriptor, &system); });
    return result == 0 && static_cast<std::uint64_t>(system.f_type) == btrfsMagic;
}

/// Backup tools keep dozens of these: they share their bytes with the original, and users cannot delete them piecemeal.
/// False if the volume cannot be queried; the folder is then unreadable or counts.
bool isReadOnlySnapshot(int directory, const char* name) {
    constexpr int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    const Descriptor top(uninterrupted([&] { return ::openat(directory, name, flags); }));
    btrfs_ioctl_get_subvol_info_args told{};
    // Returns 1 without an error for a nested subvolume.
    if (!top || ::ioctl(top.get(), BTRFS_IOC_GET_SUBVOL_INFO, &told) < 0) return false;
    const bool hasParent = std::any_of(std::begin(told.parent_uuid), std::end(told.parent_uuid),
                                       [](std::uint8_t byte) { return byte != 0; });
    return hasParent && (told.flags & readOnlyFlag) != 0;
}

}  // namespace

ScanVolume::ScanVolume(int descriptor) {
    if (!isOnBtrfs(descriptor)) return;
    DirEntry own{};
    std::uint64_t mount = 0;
    if (statxEntry(descriptor, ".", own, &mount) != StatxOutcome::ok || mount == 0) return;
    device_ = own.deviceID;
    mount_ = mount;
}

bool ScanVolume::holds(int directory, const char* name, std::uint64_t mount, std::uint64_t inode) const {
    if (mount != mount_) return false;
    return inode != subvolumeInode || !isReadOnlySnapshot(directory, name);
}

}  // namespace zelk
