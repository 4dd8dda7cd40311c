// SPDX-License-Identifier: MIT
#include "platform/posix/FileStatus.h"

#include <fcntl.h>

#include <cerrno>

#include "platform/posix/Descriptor.h"

namespace zelk {

int openAndCompareMounts(int parent, const std::string& name) {
    const std::optional<FileStatus> above = fileStatus(parent);
    const std::optional<FileStatus> before = fileStatus(parent, name);
    if (!above || !before) return -1;
    if (before->mount != above->mount) {
        errno = EXDEV;
        return -1;
    }
    constexpr int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    Descriptor folder(uninterrupted([&] { return ::openat(parent, name.c_str(), flags); }));
    if (!folder) return -1;
    const std::optional<FileStatus> own = fileStatus(folder.get());
    if (own && own->mount == above->mount) return folder.release();
    errno = own ? EXDEV : errno;
    return -1;
}

}  // namespace zelk
