// SPDX-License-Identifier: MIT
#include "platform/posix/StampedFile.h"

namespace zelk {

namespace {

FileTime timeFrom(const timespec& time) {
    return {static_cast<std::int64_t>(time.tv_sec), static_cast<std::int64_t>(time.tv_nsec)};
}

}  // namespace

FileStamp stampFrom(const struct stat& status) {
    FileStamp stamp;
    stamp.identity = {static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino)};
    stamp.size = static_cast<std::int64_t>(status.st_size);
#ifdef __APPLE__
    stamp.modified = timeFrom(status.st_mtimespec);
    stamp.changed = timeFrom(status.st_ctimespec);
#else
    stamp.modified = timeFrom(status.st_mtim);
    stamp.changed = timeFrom(status.st_ctim);
#endif
    return stamp;
}

#ifdef __APPLE__

namespace {

// Not in the headers of every SDK.
constexpr unsigned datalessFlag = 0x40000000;
constexpr unsigned hiddenFlag = 0x00008000;

}  // namespace

bool isDataless(const struct stat& status) {
    return (status.st_flags & datalessFlag) != 0;
}

bool isFlaggedHidden(const struct stat& status) {
    return (status.st_flags & hiddenFlag) != 0;
}

#else

bool isDataless(const struct stat&) {
    return false;
}

bool isFlaggedHidden(const struct stat&) {
    return false;
}

#endif

}  // namespace zelk
