// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "platform/posix/Descriptor.h"
#include "platform/posix/FileStatus.h"

namespace zelk {

/// One of the user's trash folders, open: the folder itself, and its "files" and "info". All three are real folders of
/// this user, no links, on one volume, and others may not change them: nobody else can have put them there, or can take
/// what is put in.
struct TrashFolder {
    Descriptor itself;
    Descriptor files;
    Descriptor info;
};

/// Another descriptor of the open directory `folder`: a listing begins where the last one with the same descriptor
/// ended.
Descriptor openAnew(const Descriptor& folder);

enum class IfMissing { fail, create };

/// The home trash in the folder `dataHome`, created for the user alone (0700) with what is missing above it. Absent,
/// with the reason for a person in `reason`, if there is none or it is not to be trusted.
std::optional<TrashFolder> openHomeTrash(const std::string& dataHome, IfMissing ifMissing, std::string& reason);

/// The trash of the volume whose top folder is `top`, created likewise: ".Trash/UID" where somebody with power over the
/// volume has made a ".Trash" that is a real folder and sticky, else ".Trash-UID". Where all
/// may change the top folder, as on volumes that keep no permissions, its trash is not refused for being open to them.
std::optional<TrashFolder> openVolumeTrash(const std::string& top, const FileStatus& volume, std::string& reason);

}  // namespace zelk
