// SPDX-License-Identifier: MIT
#include "platform/posix/OwnerAccess.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <optional>

#include "platform/posix/Descriptor.h"
#include "platform/posix/FileStatus.h"

namespace zelk {
namespace {

bool ownerMayAll(const FileStatus& status) {
    return (status.mode & S_IRWXU) == S_IRWXU;
}

}  // namespace

bool giveOwnerAccess(int folder) {
    const std::optional<FileStatus> before = fileStatus(folder);
    if (!before || !before->isDirectory() || before->owner != ::geteuid() || ownerMayAll(*before)) return false;
    // Go through /proc: fchmod() refuses O_PATH descriptors, and an unreadable folder has no other kind.
    const std::string path = "/proc/thread-self/fd/" + std::to_string(folder);
    if (::chmod(path.c_str(), (before->mode & 07777) | S_IRWXU) != 0) return false;
    const std::optional<FileStatus> after = fileStatus(folder);
    return after && ownerMayAll(*after);
}

bool giveOwnerAccess(int parent, const std::string& name) {
    const Descriptor folder(::openat(parent, name.c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    const std::optional<FileStatus> above = fileStatus(parent);
    const std::optional<FileStatus> own = folder ? fileStatus(folder.get()) : std::nullopt;
    return above && own && own->mount == above->mount && giveOwnerAccess(folder.get());
}

}  // namespace zelk
