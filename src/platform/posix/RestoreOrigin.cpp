// SPDX-License-Identifier: MIT
#include "platform/posix/RestoreOrigin.h"

#include <cerrno>
#include <optional>

#include "platform/Translation.h"
#include "platform/posix/FailureText.h"
#include "platform/posix/OpenParent.h"

namespace zelk {

FileIdentity identityOf(const FileStatus& status) {
    return {status.device, status.inode};
}

std::string originIsMissing() {
    return translated("Failure", "the folder it was in is no longer there");
}

Descriptor openOrigin(const TrashedItem& item, std::string& reason) {
    Descriptor folder = openParent(item.origin);
    if (!folder) {
        const bool missing = errno == ENOENT || errno == ENOTDIR || errno == ELOOP;
        reason = missing ? originIsMissing() : systemText(errno);
        return {};
    }
    const std::optional<FileStatus> status = fileStatus(folder.get());
    if (!status) {
        reason = systemText(errno);
        return {};
    }
    if (identityOf(*status) != item.parent) {
        reason = translated("Failure", "another folder has taken the place of the one it was in");
        return {};
    }
    return folder;
}

std::string reasonOfRestore(int error) {
    switch (error) {
        case EEXIST:
        case ENOTEMPTY:
            return translated("Failure", "something else is there now");
        case ENOENT:
            return translated("Failure", "it is no longer in the Trash");
        case ESTALE:
            return translated("Failure", "the Trash holds something else in its place");
        case EXDEV:
            return translated("Failure", "it is on another volume than the folder it was in");
        default:
            return systemText(error);
    }
}

}  // namespace zelk
