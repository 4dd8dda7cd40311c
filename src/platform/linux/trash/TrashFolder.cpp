// SPDX-License-Identifier: MIT
#include "platform/linux/trash/TrashFolder.h"

#include <fcntl.h>
#include <unistd.h>

#include <string_view>

#include "platform/FolderPath.h"
#include "platform/Translation.h"
#include "platform/posix/DurableFile.h"
#include "platform/posix/FailureText.h"
#include "platform/posix/OpenDirectory.h"

namespace zelk {
namespace {

// With the path and what the system said.
constexpr std::string_view notCreated = ZELK_TEXT("Failure", "“%1” couldn’t be created: %2");
constexpr std::string_view notOpened = ZELK_TEXT("Failure", "“%1” couldn’t be opened: %2");

/// Opens nested folders, each of which must be a real folder of this user.
class OwnFolders {
public:
    /// `openToAll` are write permissions of others that are acceptable here.
    OwnFolders(IfMissing ifMissing, std::string& reason, mode_t openToAll = 0)
        : ifMissing_(ifMissing), forbidden_((S_IWGRP | S_IWOTH) & ~openToAll), reason_(reason) {}

    Descriptor open(int parent, const std::string& above, const char* name) {
        const std::string path = pathIn(above, name);
        Descriptor folder(openSubdirectoryOnMount(parent, name));
        if (!folder && errno == ENOENT && ifMissing_ == IfMissing::create) {
            if (::mkdirat(parent, name, 0700) != 0 && errno != EEXIST)
                return refuse(notCreated, path, systemText(errno));
            folder = Descriptor(openSubdirectoryOnMount(parent, name));
        }
        if (!folder) return refuseUnopened(path, parent, name);
        const std::optional<FileStatus> status = fileStatus(folder.get());
        if (!status) return refuse(notOpened, path, systemText(errno));
        if (status->owner != ::geteuid()) return refuse(ZELK_TEXT("Failure", "“%1” belongs to another user"), path);
        if ((status->mode & forbidden_) != 0)
            return refuse(ZELK_TEXT("Failure", "“%1” may be changed by others"), path);
        return folder;
    }

    std::optional<TrashFolder> openTrash(int parent, const std::string& above, const char* name) {
        TrashFolder trash;
        const std::string path = pathIn(above, name);
        trash.path = path;
        trash.itself = open(parent, above, name);
        if (trash.itself) trash.files = open(trash.itself.get(), path, "files");
        if (trash.files) trash.info = open(trash.itself.get(), path, "info");
        if (!trash.info) return std::nullopt;
        return trash;
    }

private:
    Descriptor refuseUnopened(const std::string& path, int parent, const char* name) {
        const int error = errno;
        const std::optional<FileStatus> status = fileStatus(parent, name);
        if (status && S_ISLNK(status->mode)) return refuse(ZELK_TEXT("Failure", "“%1” is a link"), path);
        if (status && !status->isDirectory()) return refuse(ZELK_TEXT("Failure", "“%1” is not a folder"), path);
        if (error == EXDEV) return refuse(ZELK_TEXT("Failure", "“%1” is another volume"), path);
        return refuse(notOpened, path, systemText(error));
    }

    Descriptor refuse(std::string_view sentence, const std::string& path, std::string_view why = {}) {
        reason_ = failureText(sentence, path, why);
        return {};
    }

    IfMissing ifMissing_;
    mode_t forbidden_;
    std::string& reason_;
};

constexpr const char* sharedTrash = ".Trash";

std::string ownTrash() {
    return ".Trash-" + std::to_string(::geteuid());
}

/// Opens the ".Trash" that an administrator created for all users of a volume. It must be sticky, so that only its
/// owner can take away the folders of others.
Descriptor openSharedTrash(int top) {
    Descriptor shared(openSubdirectoryOnMount(top, sharedTrash));
    if (!shared) return {};
    const std::optional<FileStatus> status = fileStatus(shared.get());
    const bool trusted =
        status && (status->mode & S_ISVTX) != 0 && (status->owner == 0 || status->owner == ::geteuid());
    if (!trusted) return {};
    return shared;
}

/// The open top folder of a volume, which holds its trashes.
struct VolumeTop {
    Descriptor folder;
    mode_t openToAll = 0;  ///< write permissions of others that are acceptable in a trash here
};

std::optional<VolumeTop> openTop(const std::string& top, const FileStatus& volume, std::string& reason) {
    VolumeTop opened;
    opened.folder = Descriptor(openForLookups(top));
    const std::optional<FileStatus> status = opened.folder ? fileStatus(opened.folder.get()) : std::nullopt;
    if (!status) {
        reason = failureText(notOpened, top, systemText(errno));
        return std::nullopt;
    }
    // A subvolume without a mount of its own: nothing can be renamed out of it.
    if (!status->isOnVolumeOf(volume)) {
        reason = noPlaceForTrash();
        return std::nullopt;
    }
    // Some volumes have no permissions, and whoever may change the top folder could replace the whole trash anyway.
    opened.openToAll = (status->mode & S_ISVTX) != 0 ? 0 : status->mode;
    return opened;
}

}  // namespace

std::string noPlaceForTrash() {
    return translated("Failure", "its volume has no place for a Trash");
}

Descriptor reopenDirectory(const Descriptor& folder) {
    return Descriptor(::openat(folder.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

std::optional<TrashFolder> openHomeTrash(const std::string& dataHome, IfMissing ifMissing, std::string& reason) {
    if (ifMissing == IfMissing::create && !createDirectoryTree(dataHome)) {
        reason = failureText(notCreated, dataHome, systemText(errno));
        return std::nullopt;
    }
    const Descriptor folder(openForLookups(dataHome));
    if (!folder) {
        reason = failureText(notOpened, dataHome, systemText(errno));
        return std::nullopt;
    }
    return OwnFolders(ifMissing, reason).openTrash(folder.get(), dataHome, "Trash");
}

std::optional<TrashFolder> openVolumeTrash(const std::string& top, const FileStatus& volume, std::string& reason) {
    const std::optional<VolumeTop> opened = openTop(top, volume, reason);
    if (!opened) return std::nullopt;
    OwnFolders own(IfMissing::create, reason, opened->openToAll);
    const std::string user = std::to_string(::geteuid());
    if (const Descriptor shared = openSharedTrash(opened->folder.get())) {
        if (auto trash = own.openTrash(shared.get(), pathIn(top, sharedTrash), user.c_str())) return trash;
    }
    return own.openTrash(opened->folder.get(), top, ownTrash().c_str());
}

std::optional<TrashFolder> reopenVolumeTrash(const std::string& top, const FileStatus& volume, const std::string& path,
                                             std::string& reason) {
    const std::optional<VolumeTop> opened = openTop(top, volume, reason);
    if (!opened) return std::nullopt;
    OwnFolders own(IfMissing::fail, reason, opened->openToAll);
    if (path == pathIn(top, ownTrash())) return own.openTrash(opened->folder.get(), top, ownTrash().c_str());
    const std::string aboveShared = pathIn(top, sharedTrash);
    const std::string user = std::to_string(::geteuid());
    const bool isShared = path == pathIn(aboveShared, user);
    const Descriptor shared = isShared ? openSharedTrash(opened->folder.get()) : Descriptor();
    if (shared) return own.openTrash(shared.get(), aboveShared, user.c_str());
    reason = failureText(ZELK_TEXT("Failure", "“%1” is no longer the Trash of its volume"), path);
    return std::nullopt;
}

}  // namespace zelk
