// SPDX-License-Identifier: MIT
#pragma once

#include <fcntl.h>

#include <string>

#include "platform/posix/Descriptor.h"

namespace zelk {

/// Has the system write what it keeps of a file or folder to the disk. False with errno if that fails.
inline bool flush(const Descriptor& file) {
#ifdef F_FULLFSYNC
    // On macOS, fsync() leaves the data in the drive's cache; not every volume supports the stronger call.
    if (uninterrupted([&] { return ::fcntl(file.get(), F_FULLFSYNC); }) == 0) return true;
#endif
    return uninterrupted([&] { return ::fsync(file.get()); }) == 0;
}

/// Opens a folder to work in it; none if it cannot be opened.
inline Descriptor openFolder(const std::string& path) {
    return Descriptor(uninterrupted([&] { return ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
}

}  // namespace zelk
