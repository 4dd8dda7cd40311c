// SPDX-License-Identifier: MIT
#pragma once

#include "platform/posix/Descriptor.h"

namespace zelk {

/// Locks the open directory `folder` against other processes and other threads: `operation` is that of flock(2), which
/// may wait. The lock lasts until `held` is closed. True without `held` where the volume knows no locks, so that there
/// is nobody to wait for; false, with errno set, if it could not be had.
bool lockFolder(int folder, int operation, Descriptor& held);

}  // namespace zelk
