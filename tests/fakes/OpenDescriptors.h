// SPDX-License-Identifier: MIT
#pragma once

#include <sys/stat.h>

#include <filesystem>
#include <iterator>
#include <utility>

namespace zelk::fakes {

/// The number of open descriptors of the process, plus a constant.
inline std::ptrdiff_t openDescriptors() {
    return std::distance(std::filesystem::directory_iterator("/dev/fd"), {});
}

/// The identity of a file: device and inode.
using Identity = std::pair<dev_t, ino_t>;

/// The identity of an open file; {0, 0} if `descriptor` is closed.
inline Identity identityOf(int descriptor) {
    struct stat status {};
    return ::fstat(descriptor, &status) == 0 ? Identity{status.st_dev, status.st_ino} : Identity{};
}

}  // namespace zelk::fakes
