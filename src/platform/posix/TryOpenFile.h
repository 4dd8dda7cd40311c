// SPDX-License-Identifier: MIT
#pragma once

#include <fcntl.h>

#include <string>

#include "platform/posix/Descriptor.h"

namespace zelk {

/// Opens `path` for reading and closes it again. Returns 0 or the errno of open. Never blocks on a pipe or acquires a
/// controlling terminal.
inline int tryOpenFile(const std::string& path) {
    constexpr int flags = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    const Descriptor file(uninterrupted([&] { return ::open(path.c_str(), flags); }));
    return file ? 0 : errno;
}

}  // namespace zelk
