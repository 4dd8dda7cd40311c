// SPDX-License-Identifier: MIT
#include "platform/linux/trash/TrashFolder.h"

#include <fcntl.h>
#include <unistd.h>

#include <string_view>

#include "platform/FolderPath.h"
#include "platform/posix/DurableFile.h"
#include "platform/posix/FailureText.h"
#include "platform/posix/OpenDirectory.h"

namespace zelk {
namespace {

std::string reasonText(const std::string& path, std::string_view why) {
    return "“" + readableName(path) + "” " + std::string(why);
}

/// Opens nested folders, each of which must be a real folder of this user.
class OwnFolders {
public:
    /// `openToAll` are write permissions of others that are acceptable here.
    OwnFolders(IfMissing ifMissing, std::string& reason, mode_t openToAll = 0)
        : ifMissing_(ifMissing), forbidden_((S_IWGRP | S_IWOTH) & ~openToAll), reason_(reason) {}

    Descriptor open(int parent, const std::string& above, const char* name) {
        const std::string path = pathIn(above, name);
        if (ifMissing_ == IfMissing::create && ::mkdirat(parent, name, 0700) != 0 && errno != EEXIST)
            return refuse(path, "couldn’t be created: " + systemText(errno));
        Descriptor folder(openSubdirectoryOnMount(parent, name));
        if (!folder) return refuse(path, whyNotOpened(parent, name));
        const std::optional<FileStatus> status = fileStatus(folder.get());
        if (!status) return refuse(path, "couldn’t be opened: " + systemText(errno));
        if (status->owner != ::geteuid()) return refuse(path, "belongs to another user");
        if ((status->mode & forbidden_) != 0) return refuse(path, "may be changed by others");
        return folder;
    }

    std::optional<TrashFolder> openTrash(int parent, const std::string& above, const char* name) {
        TrashFolder trash;
        const std::string path = pathIn(above, name);
        trash.itself = open(parent, above, name);
        if (trash.itself) trash.files = open(trash.itself.get(), path, "files");
        if (trash.files) trash.info = open(trash.itself.get(), path, "info");
        if (!trash.info) return std::nullopt;
        return trash;
    }

private:
    static std::string whyNotOpened(int parent, const char* name) {
        const int error = errno;
        const std::optional<FileStatus> status = fileStatus(parent, name);
        if (status && S_ISLNK(status->mode)) return "is a link";
        if (status && !status->isDirectory()) return "is not a folder";
        if (error == EXDEV) return "is another volume";
        return "couldn’t be opened: " + systemText(error);
    }

    Descriptor refuse(const std::string& path, std::string_view why) {
        reason_ = reasonText(path, why);
        return {};
    }

    IfMissing ifMissing_;
    mode_t forbidden_;
    std::string& reason_;
};

/// Opens the ".Trash" that an administrator created for all users of a volume. It must be sticky, so that only its
/// owner can take away the folders of others.
Descriptor openSharedTrash(int top) {
    Descriptor shared(openSubdirectoryOnMount(top, ".Trash"));
    if (!shared) return {};
    const std::optional<FileStatus> status = fileStatus(shared.get());
    const bool trusted =
        status && (status->mode & S_ISVTX) != 0 && (status->owner == 0 || status->owner == ::geteuid());
    if (!trusted) return {};
    return shared;
}

}  // namespace

Descriptor reopenDirectory(const Descriptor& folder) {
    return Descriptor(::openat(folder.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

std::optional<TrashFolder> openHomeTrash(const std::string& dataHome, IfMissing ifMissing, std::string& reason) {
    if (ifMissing == IfMissing::create && !createDirectoryTree(dataHome)) {
        reason = reasonText(dataHome, "couldn’t be created: " + systemText(errno));
        return std::nullopt;
    }
    const Descriptor folder(openForLookups(dataHome));
    if (!folder) {
        reason = reasonText(dataHome, "couldn’t be opened: " + systemText(errno));
        return std::nullopt;
    }
    return OwnFolders(ifMissing, reason).openTrash(folder.get(), dataHome, "Trash");
}

std::optional<TrashFolder> openVolumeTrash(const std::string& top, const FileStatus& volume, std::string& reason) {
    const Descriptor folder(openForLookups(top));
    const std::optional<FileStatus> status = folder ? fileStatus(folder.get()) : std::nullopt;
    if (!status) {
        reason = reasonText(top, "couldn’t be opened: " + systemText(errno));
        return std::nullopt;
    }
    // A subvolume without a mount of its own: nothing can be renamed out of it.
    if (!status->isOnVolumeOf(volume)) {
        reason = "its volume has no place for a Trash";
        return std::nullopt;
    }
    // Some volumes have no permissions, and whoever may change the top folder could replace the whole trash anyway.
    OwnFolders own(IfMissing::create, reason, (status->mode & S_ISVTX) != 0 ? 0 : status->mode);
    const std::string user = std::to_string(::geteuid());
    if (const Descriptor shared = openSharedTrash(folder.get())) {
        if (auto trash = own.openTrash(shared.get(), pathIn(top, ".Trash"), user.c_str())) return trash;
    }
    return own.openTrash(folder.get(), top, (".Trash-" + user).c_str());
}

}  // namespace zelk
