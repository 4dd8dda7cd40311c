// SPDX-License-Identifier: MIT
#pragma once

#include <sys/stat.h>

#include <filesystem>
#include <iterator>
#include <utility>

namespace zelk::fakes {

/// How many descriptors the process has open, and always the same number more.
inline std::ptrdiff_t openDescriptors() {
    return std::distance(std::filesystem::directory_iterator("/dev/fd"), {});
}

/// What tells one file from all others: device and inode.
using Identity = std::pair<dev_t, ino_t>;

/// Of what `descriptor` is open on; {0, 0} if it is not open.
inline Identity identityOf(int descriptor) {
    struct stat status {};
    return ::fstat(descriptor, &status) == 0 ? Identity{status.st_dev, status.st_ino} : Identity{};
}

}  // namespace zelk::fakes
