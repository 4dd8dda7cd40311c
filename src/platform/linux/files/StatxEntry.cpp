// SPDX-License-Identifier: MIT
#include "platform/linux/files/StatxEntry.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>

#include "platform/posix/Descriptor.h"

namespace zelk {

namespace {

/// STATX_MNT_ID, which costs nothing and which not every C library's header has.
constexpr unsigned statxMountId = 0x1000;

/// Maps to macOS's vnode types, which the scan uses.
std::uint32_t vnodeType(std::uint16_t mode) {
    switch (mode & S_IFMT) {
        case S_IFREG:
            return 1;
        case S_IFDIR:
            return directoryObjectType;
        case S_IFBLK:
            return 3;
        case S_IFCHR:
            return 4;
        case S_IFLNK:
            return 5;
        case S_IFSOCK:
            return 6;
        case S_IFIFO:
            return 7;
        default:
            return 0;
    }
}

}  // namespace

std::int32_t deviceNumber(std::uint32_t major, std::uint32_t minor) {
    return static_cast<std::int32_t>(major << 20 | (minor & 0xFFFFFU));
}

StatxOutcome statxEntry(int directory, const char* name, DirEntry& entry, std::uint64_t* mount) {
    constexpr int flags = AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT | AT_STATX_DONT_SYNC;
    constexpr unsigned mask = STATX_TYPE | STATX_NLINK | STATX_INO | STATX_BLOCKS | STATX_MTIME | statxMountId;
    struct statx status;
    if (uninterrupted([&] { return statx(directory, name, flags, mask, &status); }) != 0)
        return errno == ENOENT ? StatxOutcome::gone : StatxOutcome::failed;
    const bool isDirectory = S_ISDIR(status.stx_mode);
    entry.name = name;
    entry.objType = vnodeType(status.stx_mode);
    entry.fileID = status.stx_ino;
    entry.linkCount = isDirectory ? 0 : status.stx_nlink;
    entry.allocSize = isDirectory ? 0 : status.stx_blocks * 512;  // always 512, whatever the file system's block
    entry.deviceID = deviceNumber(status.stx_dev_major, status.stx_dev_minor);
    entry.modTime = static_cast<double>(status.stx_mtime.tv_sec) + static_cast<double>(status.stx_mtime.tv_nsec) / 1e9;
    if (mount != nullptr) *mount = (status.stx_mask & statxMountId) != 0 ? status.stx_mnt_id : 0;
    return StatxOutcome::ok;
}

}  // namespace zelk
