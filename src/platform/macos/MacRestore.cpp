// SPDX-License-Identifier: MIT
#include "platform/macos/MacRestore.h"

#include <sys/stdio.h>

#include <cerrno>
#include <optional>
#include <string>

#include "platform/posix/FileStatus.h"
#include "platform/posix/OpenParent.h"
#include "platform/posix/RestoreOrigin.h"

namespace zelk {
namespace {

int moveExclusively(int fromFolder, const std::string& from, int toFolder, const std::string& to) {
    const int done =
        uninterrupted([&] { return ::renameatx_np(fromFolder, from.c_str(), toFolder, to.c_str(), RENAME_EXCL); });
    return done == 0 ? 0 : errno;
}

}  // namespace

Failure moveOutOfTrash(const TrashedItem& item) {
    std::string reason;
    const Descriptor folder = openOrigin(item, reason);
    if (!folder) return reason;
    const std::optional<ItemPath> inTrash = ItemPath::from(item.path);
    if (!inTrash) return reasonOfRestore(ENOENT);
    const Descriptor trash = openParent(*inTrash);
    if (!trash) return reasonOfRestore(errno);

    const std::string name(inTrash->name());
    const std::string origin(item.origin.name());
    const std::optional<FileStatus> there = fileStatus(trash.get(), name);
    if (!there) return reasonOfRestore(errno);
    if (identityOf(*there) != item.identity) return reasonOfRestore(ESTALE);
    if (const int error = moveExclusively(trash.get(), name, folder.get(), origin)) {
        const bool isThere = fileStatus(trash.get(), name).has_value();
        if (error == ENOENT && isThere) return originIsMissing();
        return reasonOfRestore(error);
    }
    // Move it back to the Trash if another item took the name there at the last moment. If unknown, assume it is ours.
    const std::optional<FileStatus> moved = fileStatus(folder.get(), origin);
    if (!moved || identityOf(*moved) == item.identity) return std::nullopt;
    moveExclusively(folder.get(), origin, trash.get(), name);
    return reasonOfRestore(ESTALE);
}

}  // namespace zelk
