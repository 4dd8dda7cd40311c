// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "platform/posix/Descriptor.h"
#include "platform/posix/FileStatus.h"

namespace zelk {

/// An open trash folder of the user: the folder itself, its "files" and its "info". All three are real folders owned by
/// this user, not links, on one volume and not writable by others: nobody else can have created them or can take away
/// their contents.
struct TrashFolder {
    std::string path;  ///< the path it was opened by
    Descriptor itself;
    Descriptor files;
    Descriptor info;
};

/// The reason for display where a volume cannot have a Trash.
std::string noPlaceForTrash();

/// Opens `folder` again: a second listing through the same descriptor would continue where the first one ended.
Descriptor reopenDirectory(const Descriptor& folder);

enum class IfMissing { fail, create };

/// Opens the home trash in the folder `dataHome`, creating it and missing parents for the user only (0700). Absent,
/// with a displayable `reason`, if it is missing or not trustworthy.
std::optional<TrashFolder> openHomeTrash(const std::string& dataHome, IfMissing ifMissing, std::string& reason);

/// Opens the trash of the volume whose top folder is `top`, creating it likewise: ".Trash/UID" if an administrator
/// created a ".Trash" that is a real, sticky folder, else ".Trash-UID". If everybody may change the top folder, as on
/// volumes without permissions, the trash may be writable by everybody too.
std::optional<TrashFolder> openVolumeTrash(const std::string& top, const FileStatus& volume, std::string& reason);

/// Opens the trash of that volume which openVolumeTrash() returned with this `path`, and no other. Creates nothing.
std::optional<TrashFolder> reopenVolumeTrash(const std::string& top, const FileStatus& volume, const std::string& path,
                                             std::string& reason);

}  // namespace zelk
