// SPDX-License-Identifier: MIT
#pragma once

#include "platform/posix/Descriptor.h"

namespace zelk {

/// Locks the open directory `folder` against other processes and threads with the flock(2) `operation`, which may
/// block. The lock lasts until `held` is closed. Returns true without `held` on volumes without locks, where nobody can
/// hold one; false, with errno set, on failure.
bool lockFolder(int folder, int operation, Descriptor& held);

}  // namespace zelk
