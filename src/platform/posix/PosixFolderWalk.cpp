// SPDX-License-Identifier: MIT
#include "platform/posix/PosixFolderWalk.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <string_view>
#include <utility>

#include "platform/FolderPath.h"
#include "platform/posix/Descriptor.h"
#include "platform/posix/DirectoryLadder.h"
#include "platform/posix/FileStatus.h"
#include "platform/posix/OpenDirectory.h"
#include "platform/posix/StampedFile.h"

namespace zelk {

namespace {

#ifdef __linux__
constexpr int lookFlags = AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT;
#else
constexpr int lookFlags = AT_SYMLINK_NOFOLLOW;
#endif

struct CloseStream {
    void operator()(DIR* stream) const { ::closedir(stream); }
};

/// A stream of its own, whose position is the beginning, for the folder that `descriptor` refers to.
std::unique_ptr<DIR, CloseStream> streamOf(int descriptor) {
    Descriptor own(uninterrupted([&] { return ::openat(descriptor, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    std::unique_ptr<DIR, CloseStream> stream(own ? ::fdopendir(own.get()) : nullptr);
    if (stream) own.release();
    return stream;
}

class PosixFolderWalk : public FolderWalk {
public:
    PosixFolderWalk(int directory, std::string root) : root_(std::move(root)) { ladder_.start(directory); }

    const std::string& root() const override { return root_; }

    std::optional<FileIdentity> identity() override {
        const std::optional<FileStatus> status = fileStatus(ladder_.current());
        if (!status) return std::nullopt;
        return FileIdentity{status->device, status->inode};
    }

    std::vector<FolderEntry> list(std::int64_t smallest) override {
        std::vector<FolderEntry> entries;
        const std::optional<FileStatus> folder = fileStatus(ladder_.current());
        const auto stream = streamOf(ladder_.current());
        if (!folder || !stream) return entries;
        while (const dirent* entry = ::readdir(stream.get()))
            if (std::optional<FolderEntry> wanted = look(*entry, *folder, smallest))
                entries.push_back(std::move(*wanted));
        std::sort(entries.begin(), entries.end(),
                  [](const FolderEntry& a, const FolderEntry& b) { return a.name < b.name; });
        return entries;
    }

    bool enter(const std::string& name) override {
        if (ladder_.descend(name)) return true;
        ladder_.ascend();
        return false;
    }

    void leave() override { ladder_.ascend(); }

private:
    std::optional<FolderEntry> look(const dirent& entry, const FileStatus& folder, std::int64_t smallest) const {
        const std::string_view name(entry.d_name);
        if (name.starts_with('.')) return std::nullopt;
#ifdef __linux__
        // There are no flags to look for, and entering it will tell the rest.
        if (entry.d_type == DT_DIR) return FolderEntry{std::string(name), true, 0};
        if (entry.d_type != DT_REG && entry.d_type != DT_UNKNOWN) return std::nullopt;
#endif
        struct stat status {};
        const int directory = ladder_.current();
        if (uninterrupted([&] { return ::fstatat(directory, entry.d_name, &status, lookFlags); }) != 0)
            return std::nullopt;
        if (isFlaggedHidden(status) || isDataless(status)) return std::nullopt;
        if (S_ISDIR(status.st_mode)) return FolderEntry{std::string(name), true, 0};
        const auto size = static_cast<std::int64_t>(status.st_size);
        if (!S_ISREG(status.st_mode) || size < smallest) return std::nullopt;
        // A file may be mounted over another one; it would look like a second name of what it shows.
        const std::optional<FileStatus> file = fileStatus(directory, entry.d_name);
        if (!file || file->mount != folder.mount) return std::nullopt;
        return FolderEntry{std::string(name), false, size};
    }

    std::string root_;
    DirectoryLadder ladder_{openSubdirectoryOnMount};
};

}  // namespace

std::unique_ptr<FolderWalk> openFolderWalk(const std::string& root) {
    const int directory = openRootDirectory(root);
    if (directory < 0) return nullptr;
    // The system cannot return a path longer than its limit; then the one it was reached by has to do.
    std::string path = pathOfDirectory(directory).value_or(normalFolder(root));
    return std::make_unique<PosixFolderWalk>(directory, std::move(path));
}

}  // namespace zelk
