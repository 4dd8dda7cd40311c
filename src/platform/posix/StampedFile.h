// SPDX-License-Identifier: MIT
#pragma once

#include <sys/stat.h>

#include "platform/FileContents.h"

namespace zelk {

FileStamp stampFrom(const struct stat& status);

/// Whether the content of a file or folder has to be fetched from a cloud first. Always false on Linux.
bool isDataless(const struct stat& status);
/// Whether a folder or file has the flag of the system that hides it. Always false on Linux, which has none.
bool isFlaggedHidden(const struct stat& status);

}  // namespace zelk
