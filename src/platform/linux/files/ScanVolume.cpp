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

// Of the headers that not every system has, or not with these names.
constexpr std::uint64_t btrfsMagic = 0x9123683E;
constexpr std::uint64_t subvolumeInode = 256;  // that of every subvolume's top folder, and of nothing else
constexpr std::uint64_t readOnlyFlag = 1;      // as it is kept on the disk

bool isOnBtrfs(int descriptor) {
    struct statfs system {};
    const int result = uninterrupted([&] { return ::fstatfs(descriptor, &system); });
    return result == 0 && static_cast<std::uint64_t>(system.f_type) == btrfsMagic;
}

/// What backup tools keep by the dozen: its bytes are those of what it was taken of, and nobody can remove them one by
/// one. False of what cannot be asked, which is then found unreadable or counts.
bool isReadOnlySnapshot(int directory, const char* name) {
    constexpr int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    const Descriptor top(uninterrupted([&] { return ::openat(directory, name, flags); }));
    btrfs_ioctl_get_subvol_info_args told{};
    // It gives 1, and no error, for a subvolume that lies in another one.
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
