// SPDX-License-Identifier: MIT
#include "platform/linux/trash/TrashOrphans.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>
#include <string>
#include <vector>

#include "platform/linux/trash/TrashInfo.h"
#include "platform/posix/DirectoryNames.h"
#include "platform/posix/FolderLock.h"

namespace zelk {
namespace {

/// Other programs hold no lock between writing info and moving its content, but do not take this long.
constexpr std::time_t youngSeconds = 60;

/// Also if the clock of the server that holds the volume is somewhat ahead.
bool isYoung(const struct stat& info) {
    const std::time_t now = ::time(nullptr);
    return info.st_mtime > now - youngSeconds && info.st_mtime < now + youngSeconds;
}

bool isMissing(const Descriptor& folder, const std::string& name) {
    struct stat status {};
    return ::fstatat(folder.get(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0 && errno == ENOENT;
}

}  // namespace

bool sweepOrphans(const TrashFolder& trash, Orphans which) {
    Descriptor held;
    if (!lockFolder(trash.info.get(), LOCK_EX | LOCK_NB, held)) return false;
    if (!held) return true;  // without locks a move may always be under way, and waiting would not help
    for (const std::string& name : directoryNames(reopenDirectory(trash.info)).value_or(std::vector<std::string>())) {
        struct stat info {};
        if (!name.ends_with(trashInfoSuffix)) continue;
        if (::fstatat(trash.info.get(), name.c_str(), &info, AT_SYMLINK_NOFOLLOW) != 0) continue;
        const bool isOwn = (info.st_mode & ownInfoMark) != 0;
        if (!isOwn && (which == Orphans::own || isYoung(info))) continue;
        const std::string content = name.substr(0, name.size() - trashInfoSuffix.size());
        if (content.empty() || isMissing(trash.files, content)) ::unlinkat(trash.info.get(), name.c_str(), 0);
    }
    // Unlock before closing, which may fail: this thread takes the same lock next.
    ::flock(held.get(), LOCK_UN);
    return true;
}

}  // namespace zelk
