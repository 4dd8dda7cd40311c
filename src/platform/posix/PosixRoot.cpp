// SPDX-License-Identifier: MIT
#include "platform/posix/PosixRoot.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>

#include "platform/posix/OpenDirectory.h"

#ifdef __linux__
#include <sys/sysmacros.h>

#include "platform/linux/files/StatxEntry.h"
#endif

namespace zelk {

namespace {

bool statFollowing(const std::string& path, struct stat& status) {
    if (stat(path.c_str(), &status) == 0) return true;
    if (errno != ENAMETOOLONG) return false;
    const int fd = openRootDirectory(path);  // only directories can be opened in pieces, and only they are useful
    if (fd < 0) return false;
    const bool known = fstat(fd, &status) == 0;
    close(fd);
    return known;
}

}  // namespace

std::int32_t deviceOf(const struct stat& status) {
#ifdef __linux__
    return deviceNumber(major(status.st_dev), minor(status.st_dev));
#else
    return static_cast<std::int32_t>(status.st_dev);
#endif
}

std::optional<RootStatus> posixRootStatus(const std::string& path) {
    struct stat status;
    if (!statFollowing(path, status)) return std::nullopt;
    return RootStatus{deviceOf(status), static_cast<TimePoint>(status.st_mtime)};
}

std::shared_ptr<const DirectoryRoot> openPosixRoot(const std::string& path) {
    const int fd = openRootDirectory(path);
    if (fd < 0) return nullptr;
    return std::make_shared<PosixRoot>(fd);
}

}  // namespace zelk
