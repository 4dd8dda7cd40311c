// SPDX-License-Identifier: MIT
// Compiled for macOS and never run there.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <optional>

#include "platform/posix/FileStatus.h"
#include "platform/posix/OwnerAccess.h"

namespace zelk {
namespace {

bool ownerMayAll(const FileStatus& status) {
    return (status.mode & S_IRWXU) == S_IRWXU;
}

/// Whether access is missing and this user may grant it.
bool lacksAccess(const std::optional<FileStatus>& folder) {
    return folder && folder->isDirectory() && folder->owner == ::geteuid() && !ownerMayAll(*folder);
}

mode_t opened(const FileStatus& folder) {
    return (folder.mode & 07777) | S_IRWXU;
}

}  // namespace

bool giveOwnerAccess(int folder) {
    const std::optional<FileStatus> before = fileStatus(folder);
    if (!lacksAccess(before) || ::fchmod(folder, opened(*before)) != 0) return false;
    const std::optional<FileStatus> after = fileStatus(folder);
    return after && ownerMayAll(*after);
}

bool giveOwnerAccess(int parent, const std::string& name) {
    const std::optional<FileStatus> above = fileStatus(parent);
    const std::optional<FileStatus> before = fileStatus(parent, name);
    if (!above || !lacksAccess(before) || before->mount != above->mount) return false;
    // By name, never through a link: a folder without read and search permission cannot be opened here.
    if (::fchmodat(parent, name.c_str(), opened(*before), AT_SYMLINK_NOFOLLOW) != 0) return false;
    const std::optional<FileStatus> after = fileStatus(parent, name);
    return after && after->isSameFile(*before) && ownerMayAll(*after);
}

}  // namespace zelk
