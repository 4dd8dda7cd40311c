// SPDX-License-Identifier: MIT
#include "platform/linux/trash/TrashRestore.h"

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstddef>
#include <optional>

#include "platform/linux/trash/TrashEntry.h"
#include "platform/posix/RestoreOrigin.h"

namespace zelk {
namespace {

/// Returns 0 if the info file has exactly this content, ESTALE if not, ENOENT if there is none, or another errno.
int compareInfo(const Place& info, const std::string& content) {
    constexpr int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    const Descriptor file(uninterrupted([&] { return ::openat(info.folder, info.name.c_str(), flags); }));
    if (!file) return errno;
    std::string read(content.size() + 1, '\0');
    std::size_t length = 0;
    while (length < read.size()) {
        const ssize_t got = uninterrupted([&] { return ::read(file.get(), &read[length], read.size() - length); });
        if (got < 0) return errno;
        if (got == 0) break;
        length += static_cast<std::size_t>(got);
    }
    read.resize(length);
    return read == content ? 0 : ESTALE;
}

/// Ignores folders that cannot be flushed or read, as moving to the Trash does.
void flushFolder(int folder) {
    const Descriptor readable(uninterrupted([&] { return ::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (readable) static_cast<void>(uninterrupted([&] { return ::fsync(readable.get()); }));
}

/// Checks the entry and renames it within the trash. Returns 0, or the errno and leaves it unchanged.
int takeAside(const TrashFolder& trash, const std::string& name, const TrashedItem& item, const Place& place,
              TrashEntry& entry, std::string& own) {
    const std::optional<FileStatus> content = fileStatus(trash.files.get(), name);
    if (!content) return errno;
    if (identityOf(*content) != item.identity) return ESTALE;
    if (const int error = compareInfo(infoOf(trash, name), item.info)) return error == ENOENT ? ESTALE : error;
    // Check early so that the usual failure does not touch the entry. The move finds what comes later.
    if (fileStatus(place.folder, place.name)) return EEXIST;
    entry = {name, *content};
    std::atomic<unsigned> next{0};
    return setAside(trash, entry, "restoring", next, own);
}

}  // namespace

Failure restoreFromTrash(const TrashFolder& trash, const std::string& name, const TrashedItem& item,
                         const Place& place) {
    TrashEntry entry;
    std::string own;
    if (const int error = takeAside(trash, name, item, place, entry, own)) return reasonOfRestore(error);
    if (const int error = moveAmongOthers({trash.files.get(), own}, place)) {
        const bool isThere = fileStatus(trash.files.get(), own).has_value();
        putBack(trash, own, entry);
        if (error == ENOENT && isThere) return originIsMissing();
        return reasonOfRestore(error);
    }
    flushFolder(place.folder);
    flushFolder(trash.files.get());
    const Place info = infoOf(trash, own);
    ::unlinkat(info.folder, info.name.c_str(), 0);
    return std::nullopt;
}

}  // namespace zelk
