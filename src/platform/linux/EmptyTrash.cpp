// SPDX-License-Identifier: MIT
#include "platform/linux/EmptyTrash.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/TrashInfo.h"
#include "platform/linux/TrashMove.h"
#include "platform/posix/DirectoryNames.h"
#include "platform/posix/RemoveEntry.h"

namespace zelk {
namespace {

/// Other programs hold no lock between writing an info file and moving its content, but are not that slow.
constexpr std::time_t youngSeconds = 60;

/// By a descriptor of its own: a listing begins where the last one with the same descriptor ended.
std::vector<std::string> namesIn(const Descriptor& folder) {
    return directoryNames(Descriptor(::openat(folder.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC)))
        .value_or(std::vector<std::string>());
}

bool isMissing(const Descriptor& folder, const std::string& name) {
    struct stat status {};
    return ::fstatat(folder.get(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0 && errno == ENOENT;
}

bool isYoung(const Descriptor& folder, const std::string& name) {
    struct stat status {};
    if (::fstatat(folder.get(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) return true;
    const std::time_t now = ::time(nullptr);
    return status.st_mtime > now - youngSeconds && status.st_mtime <= now;
}

void sweepInfos(const TrashFolder& trash, const std::vector<std::string>& infos) {
    const Descriptor held = holdTrash(trash.info.get());
    if (!held) return;
    for (const std::string& info : infos) {
        if (!info.ends_with(trashInfoSuffix) || isYoung(trash.info, info)) continue;
        const std::string content = info.substr(0, info.size() - trashInfoSuffix.size());
        if (content.empty() || isMissing(trash.files, content)) ::unlinkat(trash.info.get(), info.c_str(), 0);
    }
}

}  // namespace

std::size_t emptyTrash(const TrashFolder& trash) {
    const std::vector<std::string> infos = namesIn(trash.info);
    std::size_t removed = 0;
    for (const std::string& name : namesIn(trash.files)) {
        const std::string info = name + std::string(trashInfoSuffix);
        // A name is taken for as long as there is info, so this info is the content's own. Where there is none, what
        // turns up later belongs to a newcomer of the same name.
        const bool hasInfo = !isMissing(trash.info, info);
        if (removeEntry(trash.files.get(), name)) continue;
        ++removed;
        if (hasInfo) ::unlinkat(trash.info.get(), info.c_str(), 0);
    }
    sweepInfos(trash, infos);
    // Sizes that other programs keep so that they need not count again.
    if (removed > 0) ::unlinkat(trash.itself.get(), "directorysizes", 0);
    return removed;
}

}  // namespace zelk
