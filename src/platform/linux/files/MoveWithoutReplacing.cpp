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

/// Creates an empty entry at `to` that a rename of `item` can replace. Creation fails if anything exists there, which
/// the volume's rename alone cannot guarantee.
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
    if (holds(to, item)) return 0;  // as in moveOr()
    if (reserved && holds(to, *reserved)) ::unlinkat(to.folder, to.name.c_str(), item.isDirectory() ? AT_REMOVEDIR : 0);
    return error;
}

/// Moves a file with two calls. If killed in between, leaves it as one file with two names.
int linkAndUnlink(const Place& from, const Place& to, const FileStatus& item) {
    if (::linkat(from.folder, from.name.c_str(), to.folder, to.name.c_str(), 0) != 0) return errno;
    if (::unlinkat(from.folder, from.name.c_str(), 0) == 0) return 0;
    const int error = errno;
    if (holds(to, item)) ::unlinkat(to.folder, to.name.c_str(), 0);
    return error;
}

/// Moves an item on a volume that does not support RENAME_NOREPLACE.
using Fallback = int (*)(const Place& from, const Place& to, const FileStatus& item);

int moveOr(const Place& from, const Place& to, Fallback fallback) {
    const std::optional<FileStatus> item = fileStatus(from.folder, from.name);
    if (!item) return errno;
    if (::renameat2(from.folder, from.name.c_str(), to.folder, to.name.c_str(), RENAME_NOREPLACE) == 0) return 0;
    const int error = errno;
    // EINVAL: the volume does not support RENAME_NOREPLACE; EPERM: some container filters refuse unknown system calls.
    if (error == EINVAL || error == ENOSYS || error == EPERM) return fallback(from, to, *item);
    // Some volumes report an error for a rename that succeeded, when the reply was lost.
    return holds(to, *item) ? 0 : error;
}

}  // namespace

bool holds(const Place& place, const FileStatus& file) {
    const std::optional<FileStatus> there = fileStatus(place.folder, place.name);
    return there && there->isSameFile(file);
}

int moveWithoutReplacing(const Place& from, const Place& to) {
    return moveOr(from, to, moveOntoReservation);
}

int moveAmongOthers(const Place& from, const Place& to) {
    return moveOr(from, to, [](const Place& item, const Place& there, const FileStatus& status) {
        // A rename replaces only an empty folder, so a reservation that somebody has filled stays.
        return status.isDirectory() ? moveOntoReservation(item, there, status) : linkAndUnlink(item, there, status);
    });
}

}  // namespace zelk
