// SPDX-License-Identifier: MIT
#include "zoo/RemoveTree.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>
#include <vector>

namespace zelk::zoo {

namespace {

constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

int openFolder(int parent, const char* name) {
    const int fd = openat(parent, name, folderFlags);
    if (fd >= 0 || errno != EACCES) return fd;
    if (fchmodat(parent, name, S_IRWXU, 0) != 0) return -1;
    return openat(parent, name, folderFlags);
}

/// Unlinks everything but folders in `folder`, and returns the names of the folders on `device`.
bool unlinkFiles(int folder, dev_t device, std::vector<std::string>& folders) {
    struct stat own;
    if (fstat(folder, &own) == 0 && (own.st_mode & S_IRWXU) != S_IRWXU) fchmod(folder, S_IRWXU);
    DIR* const stream = fdopendir(dup(folder));
    if (stream == nullptr) return false;
    rewinddir(stream);
    bool clean = true;
    while (const dirent* const entry = readdir(stream)) {
        const char* const name = entry->d_name;
        if (std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0) continue;
        struct stat status;
        if (fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
            clean = false;
        } else if (!S_ISDIR(status.st_mode)) {
            clean = unlinkat(folder, name, 0) == 0 && clean;
        } else if (status.st_dev == device) {
            folders.emplace_back(name);
        } else {
            errno = EXDEV;
            clean = false;
        }
    }
    closedir(stream);
    return clean;
}

/// A folder being emptied: its name in its parent, and its subfolders still to be removed.
struct Level {
    std::string name;
    std::vector<std::string> pending;
};

}  // namespace

// Keeps one descriptor and returns through "..", so that neither depth nor path length is limited.
bool removeTree(const std::string& folder, bool itself) {
    int at = openFolder(AT_FDCWD, folder.c_str());
    if (at < 0) return false;
    struct stat status;
    bool clean = fstat(at, &status) == 0;
    const dev_t device = status.st_dev;
    std::vector<Level> levels(1);
    clean = unlinkFiles(at, device, levels.back().pending) && clean;
    while (true) {
        Level& level = levels.back();
        if (!level.pending.empty()) {
            Level below{std::move(level.pending.back()), {}};
            level.pending.pop_back();
            const int next = openFolder(at, below.name.c_str());
            if (next < 0) {
                clean = false;
                continue;
            }
            close(std::exchange(at, next));
            clean = unlinkFiles(at, device, below.pending) && clean;
            levels.push_back(std::move(below));
        } else if (levels.size() > 1) {
            const int above = openat(at, "..", folderFlags);
            close(std::exchange(at, above));
            if (at < 0) return false;
            clean = unlinkat(at, levels.back().name.c_str(), AT_REMOVEDIR) == 0 && clean;
            levels.pop_back();
        } else {
            break;
        }
    }
    close(at);
    return (!itself || rmdir(folder.c_str()) == 0) && clean;
}

}  // namespace zelk::zoo
