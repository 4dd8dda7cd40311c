// SPDX-License-Identifier: MIT
#include "platform/posix/FileStatus.h"

#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/syscall.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <climits>

#include "platform/Text.h"
#include "platform/posix/Descriptor.h"
#include "platform/posix/DurableFile.h"

namespace zelk {
namespace {

/// STATX_MNT_ID (Linux 5.8), which not every C library's header has.
constexpr unsigned maskMountId = 0x1000;

std::string processPath(const char* kind, int descriptor) {
    return std::string("/proc/thread-self/") + kind + "/" + std::to_string(descriptor);
}

/// Reads the mount id where statx does not return it.
std::optional<std::uint64_t> mountFromProcess(int descriptor) {
    constexpr std::string_view key = "\nmnt_id:";
    const std::string text = readWholeFile(processPath("fdinfo", descriptor)).value_or("");
    const std::size_t at = text.find(key);
    std::string_view rest = at == std::string::npos ? "" : std::string_view(text).substr(at + key.size());
    const auto id = parseNumber<std::uint64_t>(trimmed(takeLine(rest)));
    if (!id) errno = ENOSYS;
    return id;
}

std::optional<std::uint64_t> mountFromProcess(int folder, const std::string& name) {
    if (name.empty()) return mountFromProcess(folder);
    const Descriptor file(::openat(folder, name.c_str(), O_PATH | O_NOFOLLOW | O_CLOEXEC));
    return file ? mountFromProcess(file.get()) : std::nullopt;
}

int openOnMount(int parent, const char* name) {
    open_how how{};
    how.flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    how.resolve = RESOLVE_BENEATH | RESOLVE_NO_SYMLINKS | RESOLVE_NO_MAGICLINKS | RESOLVE_NO_XDEV;
    long fd;
    do {
        fd = ::syscall(SYS_openat2, parent, name, &how, sizeof how);
    } while (fd < 0 && (errno == EINTR || errno == EAGAIN));
    return static_cast<int>(fd);
}

}  // namespace

std::optional<FileStatus> fileStatus(int folder, const std::string& name) {
    const int flags = AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT | (name.empty() ? AT_EMPTY_PATH : 0);
    constexpr unsigned mask = STATX_TYPE | STATX_MODE | STATX_INO | STATX_UID | maskMountId;
    struct statx told {};
    if (uninterrupted([&] { return ::statx(folder, name.c_str(), flags, mask, &told); }) != 0) return std::nullopt;
    FileStatus status;
    status.device = ::makedev(told.stx_dev_major, told.stx_dev_minor);
    status.inode = told.stx_ino;
    status.mode = told.stx_mode;
    status.owner = told.stx_uid;
    if ((told.stx_mask & maskMountId) != 0) {
        status.mount = told.stx_mnt_id;
        return status;
    }
    const std::optional<std::uint64_t> mount = mountFromProcess(folder, name);
    if (!mount) return std::nullopt;
    status.mount = *mount;
    return status;
}

std::optional<FileStatus> fileStatus(int descriptor) {
    return fileStatus(descriptor, "");
}

int openSubdirectoryOnMount(int parent, std::string_view name) {
    const std::string terminated(name);
    const int fd = openOnMount(parent, terminated.c_str());
    // EPERM: some container filters refuse unknown system calls.
    return fd < 0 && (errno == ENOSYS || errno == EPERM) ? openAndCompareMounts(parent, terminated) : fd;
}

std::optional<std::string> pathOfDirectory(int descriptor) {
    char path[PATH_MAX];
    const ssize_t length = ::readlink(processPath("fd", descriptor).c_str(), path, sizeof path);
    if (length <= 0 || length == static_cast<ssize_t>(sizeof path) || path[0] != '/') return std::nullopt;
    return std::string(path, static_cast<std::size_t>(length));
}

std::vector<Mount> mountTable() {
    return parseMountTable(readWholeFile("/proc/thread-self/mountinfo").value_or(""));
}

}  // namespace zelk
