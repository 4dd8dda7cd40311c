// SPDX-License-Identifier: MIT
#include "platform/linux/files/MoveWithoutReplacing.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/posix/Descriptor.h"
#include "platform/posix/FileStatus.h"

namespace zelk {
namespace {

/// Whether `place` now holds what was at another place before: some volumes report an error of a rename that they did,
/// when an answer was lost on the way.
bool holds(const Place& place, const FileStatus& item) {
    const std::optional<FileStatus> there = fileStatus(place.folder, place.name);
    return there && there->isSameFile(item);
}

/// An empty entry of our own at `to`, of the kind that a rename of `item` can replace. Creating it fails if anything is
/// there, which is what the volume's rename cannot promise.
int reserve(const Place& to, const FileStatus& item) {
    if (item.isDirectory()) return ::mkdirat(to.folder, to.name.c_str(), 0700);
    const Descriptor file(uninterrupted([&] {
        return ::openat(to.folder, to.name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
    }));
    return file ? 0 : -1;
}

int moveOntoReservation(const Place& from, const Place& to, const FileStatus& item) {
    if (reserve(to, item) != 0) return errno;
    const std::optional<FileStatus> reserved = fileStatus(to.folder, to.name);
    if (::renameat(from.folder, from.name.c_str(), to.folder, to.name.c_str()) == 0) return 0;
    const int error = errno;
    if (holds(to, item)) return 0;
    if (reserved && holds(to, *reserved)) ::unlinkat(to.folder, to.name.c_str(), item.isDirectory() ? AT_REMOVEDIR : 0);
    return error;
}

}  // namespace

int moveWithoutReplacing(const Place& from, const Place& to) {
    const std::optional<FileStatus> item = fileStatus(from.folder, from.name);
    if (!item) return errno;
    if (::renameat2(from.folder, from.name.c_str(), to.folder, to.name.c_str(), RENAME_NOREPLACE) == 0) return 0;
    const int error = errno;
    // EINVAL: this volume cannot promise it; EPERM: some container filters refuse what they do not know.
    if (error == EINVAL || error == ENOSYS || error == EPERM) return moveOntoReservation(from, to, *item);
    return holds(to, *item) ? 0 : error;
}

}  // namespace zelk
