// SPDX-License-Identifier: MIT
// Parts of restoring from the Trash that both systems share.
#pragma once

#include <string>

#include "platform/TrashedItem.h"
#include "platform/posix/Descriptor.h"
#include "platform/posix/FileStatus.h"

namespace zelk {

FileIdentity identityOf(const FileStatus& status);

/// The reason for display where the folder of the item is gone.
std::string originIsMissing();

/// Opens the folder that `item` was in for lookups, by its original path and without following links. Returns no
/// descriptor, and a displayable `reason`, if it is missing or has been replaced by another folder.
Descriptor openOrigin(const TrashedItem& item, std::string& reason);

/// Returns why the item could not be restored, for display. EEXIST: something else is at its old path; ENOENT: it is no
/// longer in the Trash; ESTALE: the Trash holds another item in its place.
std::string reasonOfRestore(int error);

}  // namespace zelk
