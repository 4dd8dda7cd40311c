// SPDX-License-Identifier: MIT
#pragma once

#include <fcntl.h>

#include <string>

#include "platform/posix/Descriptor.h"

namespace zelk {

/// Opens `path` for reading and closes it again: 0, or the errno of the opening. Never waits on a pipe, and takes no
/// terminal.
inline int tryOpenFile(const std::string& path) {
    constexpr int flags = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    const Descriptor file(uninterrupted([&] { return ::open(path.c_str(), flags); }));
    return file ? 0 : errno;
}

}  // namespace zelk
