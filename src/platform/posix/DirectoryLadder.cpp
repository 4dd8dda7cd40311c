// SPDX-License-Identifier: MIT
#include "platform/posix/DirectoryLadder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/posix/Descriptor.h"

namespace zelk {

bool DirectoryLadder::open(int rootFd, const std::string& below) {
    return start(openDirectoryBeneath(rootFd, below));
}

bool DirectoryLadder::start(int directory) {
    const int error = errno;
    clear();
    errno = error;
    return push(directory);
}

bool DirectoryLadder::descend(std::string_view name) {
    const int above = current();
    // Nothing can be opened below a failed level, so do not close a descriptor for it: it might be the one that the way
    // back needs, and ".." does not lead there.
    if (above < 0) return push(-1);
    if (rungs_.size() - firstOpen_ >= maximumOpen) setOldestAside();
    return push(opener_(above, name));
}

bool DirectoryLadder::ascend() {
    if (rungs_.empty()) return false;
    const Rung left = rungs_.back();
    rungs_.pop_back();
    if (!rungs_.empty() && rungs_.back().set) {
        Rung& above = rungs_.back();
        above.set = false;
        firstOpen_ = rungs_.size() - 1;
        if (left.fd >= 0) {
            const int fd = uninterrupted([&] { return openat(left.fd, "..", O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
            struct stat status;
            // A directory that was moved has another parent now, which is not ours.
            if (fd >= 0 && fstat(fd, &status) == 0 && status.st_dev == above.device && status.st_ino == above.inode)
                above.fd = fd;
            else if (fd >= 0)
                close(fd);
        }
    }
    if (left.fd >= 0) close(left.fd);
    if (firstOpen_ > rungs_.size()) firstOpen_ = rungs_.size();
    return current() >= 0;
}

void DirectoryLadder::clear() {
    for (const Rung& rung : rungs_)
        if (rung.fd >= 0) close(rung.fd);
    rungs_.clear();
    firstOpen_ = 0;
}

bool DirectoryLadder::push(int fd) {
    const int error = errno;  // keep the reason of a failed open
    rungs_.push_back({.fd = fd});
    errno = error;
    return fd >= 0;
}

void DirectoryLadder::setOldestAside() {
    Rung& rung = rungs_[firstOpen_++];
    if (rung.fd < 0) return;
    struct stat status;
    if (fstat(rung.fd, &status) == 0) {
        rung.set = true;
        rung.device = status.st_dev;
        rung.inode = status.st_ino;
    }
    close(rung.fd);
    rung.fd = -1;
}

}  // namespace zelk
