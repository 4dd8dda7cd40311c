// SPDX-License-Identifier: MIT
#include "platform/posix/FolderLock.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <utility>

namespace zelk {

bool lockFolder(int folder, int operation, Descriptor& held) {
    held = Descriptor();
    // Open a separate descriptor: the lock belongs to it and not to the process.
    Descriptor own(uninterrupted([&] { return ::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (!own) return false;
    if (uninterrupted([&] { return ::flock(own.get(), operation); }) == 0) {
        held = std::move(own);
        return true;
    }
    const int error = errno;
    own = Descriptor();
    errno = error;
    return error == ENOTSUP || error == EOPNOTSUPP || error == ENOSYS || error == ENOLCK || error == EINVAL;
}

}  // namespace zelk
