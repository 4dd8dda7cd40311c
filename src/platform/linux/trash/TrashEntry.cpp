// SPDX-License-Identifier: MIT
#include "platform/linux/trash/TrashEntry.h"

#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <optional>

#include "platform/linux/trash/TrashInfo.h"
#include "platform/posix/FolderLock.h"

namespace zelk {
namespace {

/// Links the info at `from` to the name `to` as well, or renames it on volumes without hard links. Returns 0 also if
/// there is no info.
int nameInfo(const Place& from, const Place& to) {
    if (::linkat(from.folder, from.name.c_str(), to.folder, to.name.c_str(), 0) == 0) return 0;
    const bool noSecondNames = errno == EPERM || errno == ENOSYS || errno == EOPNOTSUPP || errno == EMLINK;
    const int error = noSecondNames ? moveWithoutReplacing(from, to) : errno;
    // Content with a name that is too long for info has none.
    const bool hasNone = error == ENOENT || (error == ENAMETOOLONG && !fileStatus(from.folder, from.name));
    if (!hasNone) return error;
    return fileStatus(to.folder, to.name) ? EEXIST : 0;
}

void undoNameInfo(const Place& from, const Place& to) {
    const int error = moveWithoutReplacing(to, from);
    if (error == 0 || error == EEXIST) ::unlinkat(to.folder, to.name.c_str(), 0);
}

/// Renames an entry within `trash` so that its content, if it has info, has it at every moment. Returns 0 or the errno:
/// EEXIST if the name `to` is taken. On an error the entry, or the item that took its name, is unchanged.
int renameEntry(const TrashFolder& trash, const TrashEntry& entry, const std::string& to) {
    const Place content{trash.files.get(), entry.name};
    const Place newContent{trash.files.get(), to};
    const Place info = infoOf(trash, entry.name);
    const Place newInfo = infoOf(trash, to);
    if (const int error = nameInfo(info, newInfo); error != 0) return error;
    int error = moveWithoutReplacing(content, newContent);
    if (error == 0 && !holds(newContent, entry.content)) {
        error = ESTALE;
        // If the name is taken again, the new item keeps the name that it came to, with its info.
        if (moveWithoutReplacing(newContent, content) != 0) return error;
    }
    if (error != 0) {
        undoNameInfo(info, newInfo);
        return error;
    }
    // The old info may belong to a new item by now.
    const std::optional<FileStatus> own = fileStatus(newInfo.folder, newInfo.name);
    if (own && holds(info, *own)) ::unlinkat(info.folder, info.name.c_str(), 0);
    return 0;
}

}  // namespace

Place infoOf(const TrashFolder& trash, const std::string& name) {
    return {trash.info.get(), name + std::string(trashInfoSuffix)};
}

int setAside(const TrashFolder& trash, const TrashEntry& entry, const std::string& why, std::atomic<unsigned>& next,
             std::string& own) {
    constexpr int maximumTries = 1000;
    Descriptor moving;  // its info briefly has no content without being an orphan
    if (!lockFolder(trash.info.get(), LOCK_SH, moving)) return errno;
    int error = EEXIST;
    for (int tried = 0; error == EEXIST && tried < maximumTries; ++tried) {
        own = why + "." + std::to_string(::getpid()) + "." + std::to_string(next++);
        error = renameEntry(trash, entry, own);
    }
    return error;
}

void putBack(const TrashFolder& trash, const std::string& own, const TrashEntry& entry) {
    Descriptor moving;
    if (lockFolder(trash.info.get(), LOCK_SH, moving)) renameEntry(trash, {own, entry.content}, entry.name);
}

}  // namespace zelk
