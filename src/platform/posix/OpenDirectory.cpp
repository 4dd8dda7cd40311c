// SPDX-License-Identifier: MIT
#include "platform/posix/OpenDirectory.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <climits>

#ifdef __linux__
#include <linux/openat2.h>
#include <sys/syscall.h>

#include <atomic>
#endif

namespace zelk {

namespace {

// O_DIRECTORY also prevents opening a pipe, which would block waiting for a writer.
constexpr int directoryFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
#ifdef __linux__
constexpr int lookupFlags = O_PATH | O_DIRECTORY | O_CLOEXEC;
#else
constexpr int lookupFlags = O_SEARCH | O_CLOEXEC;  // includes O_DIRECTORY
#endif

int openAt(int parent, const char* path, int flags) {
    int fd;
    do {
        fd = openat(parent, path, flags);
    } while (fd < 0 && errno == EINTR);
    return fd;
}

/// Opens component by component, each relative to the previous one and none through a link.
int openByComponents(int rootFd, std::string_view below, int flags) {
    int at = openAt(rootFd, ".", flags);
    while (at >= 0 && !below.empty()) {
        const std::size_t slash = below.find('/');
        const std::string component(below.substr(0, slash));
        below = slash == std::string_view::npos ? std::string_view() : below.substr(slash + 1);
        const bool upwards = component == "..";
        const int next = upwards ? -1 : openAt(at, component.c_str(), flags | O_NOFOLLOW);
        const int error = upwards ? EXDEV : errno;
        close(at);
        errno = error;
        at = next;
    }
    return at;
}

/// Splits `path` into pieces within the kernel's limit and calls `openPiece(parent, piece)` for each. Returns the last
/// descriptor.
template <class OpenPiece>
int openInPieces(int start, std::string_view path, const OpenPiece& openPiece) {
    constexpr std::size_t longest = PATH_MAX - 1;
    int at = start;
    while (true) {
        std::size_t length = path.size();
        if (length > longest) {
            length = path.rfind('/', longest);
            if (length == std::string_view::npos || length == 0) {
                if (at != start) close(at);
                errno = ENAMETOOLONG;
                return -1;
            }
        }
        const int next = openPiece(at, std::string(path.substr(0, length)).c_str());
        const int error = errno;
        if (at != start) close(at);
        errno = error;
        if (next < 0 || length == path.size()) return next;
        at = next;
        path.remove_prefix(length);
        while (path.starts_with('/')) path.remove_prefix(1);
        if (path.empty()) return at;
    }
}

int openFollowing(const std::string& path, int flags) {
    if (path.size() < PATH_MAX) return openAt(AT_FDCWD, path.c_str(), flags);
    return openInPieces(AT_FDCWD, path, [flags](int at, const char* piece) { return openAt(at, piece, flags); });
}

#ifdef __linux__

// Opens the whole path in one call, if the kernel has it (5.6) and no filter forbids it.
int openWithoutLinks(int parent, const char* path, int flags) {
    open_how how{};
    how.flags = static_cast<unsigned>(flags | O_NOFOLLOW);
    how.resolve = RESOLVE_BENEATH | RESOLVE_NO_SYMLINKS | RESOLVE_NO_MAGICLINKS;
    long fd;
    do {
        fd = syscall(SYS_openat2, parent, path, &how, sizeof how);
    } while (fd < 0 && (errno == EINTR || errno == EAGAIN));
    return static_cast<int>(fd);
}

std::atomic<bool> openat2Missing{false};

#endif

int openBeneath(int rootFd, std::string_view below, int flags) {
    if (below.empty()) return openAt(rootFd, ".", flags);
#ifdef __linux__
    if (!openat2Missing.load(std::memory_order_relaxed)) {
        const int fd = openInPieces(rootFd, below,
                                    [flags](int at, const char* piece) { return openWithoutLinks(at, piece, flags); });
        if (fd >= 0 || (errno != ENOSYS && errno != EPERM)) return fd;
        // EPERM: some container filters refuse unknown system calls. Retry the slow way; a directory that is really
        // forbidden fails there too.
        if (errno == ENOSYS) openat2Missing.store(true, std::memory_order_relaxed);
    }
#endif
    return openByComponents(rootFd, below, flags);
}

}  // namespace

int openRootDirectory(const std::string& path) {
    return openFollowing(path, directoryFlags);
}

int openForLookups(const std::string& path) {
    return openFollowing(path, lookupFlags);
}

int openForLookupsBeneath(int rootFd, std::string_view below) {
    return openBeneath(rootFd, below, lookupFlags);
}

int openDirectoryBeneath(int rootFd, std::string_view below) {
    return openBeneath(rootFd, below, directoryFlags);
}

int openSubdirectory(int parentFd, std::string_view name) {
    return openAt(parentFd, std::string(name).c_str(), directoryFlags | O_NOFOLLOW);
}

}  // namespace zelk
