// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <sys/mount.h>
#include <sys/param.h>

#include "platform/posix/Descriptor.h"
#include "platform/posix/FileStatus.h"

namespace zelk {
namespace {

FileStatus statusFrom(const struct stat& told) {
    const auto device = static_cast<std::uint64_t>(told.st_dev);
    return {.device = device, .inode = told.st_ino, .mount = device, .mode = told.st_mode, .owner = told.st_uid};
}

/// The mount point of the data volume. Its folders also appear directly under "/", and a path may have either form.
constexpr std::string_view dataVolume = "/System/Volumes/Data";

}  // namespace

std::optional<FileStatus> fileStatus(int descriptor) {
    struct stat told;
    if (::fstat(descriptor, &told) != 0) return std::nullopt;
    return statusFrom(told);
}

std::optional<FileStatus> fileStatus(int folder, const std::string& name) {
    struct stat told;
    if (uninterrupted([&] { return ::fstatat(folder, name.c_str(), &told, AT_SYMLINK_NOFOLLOW); }) != 0)
        return std::nullopt;
    return statusFrom(told);
}

int openSubdirectoryOnMount(int parent, std::string_view name) {
    return openAndCompareMounts(parent, std::string(name));
}

std::optional<std::string> pathOfDirectory(int descriptor) {
    char path[MAXPATHLEN];
    if (::fcntl(descriptor, F_GETPATH, path) != 0 || path[0] != '/') return std::nullopt;
    return path;
}

std::vector<Mount> mountTable() {
    const int count = ::getfsstat(nullptr, 0, MNT_NOWAIT);
    if (count <= 0) return {};
    std::vector<struct statfs> told(static_cast<std::size_t>(count) + 8);  // room for mounts added meanwhile
    const int got = ::getfsstat(told.data(), static_cast<int>(told.size() * sizeof told[0]), MNT_NOWAIT);
    std::vector<Mount> table;
    const auto add = [&](const struct statfs& one, std::string_view point) {
        Mount mount;
        mount.id = static_cast<std::uint64_t>(one.f_fsid.val[0]);
        mount.point = point;
        table.push_back(std::move(mount));
    };
    for (int i = 0; i < got; ++i) {
        const struct statfs& one = told[static_cast<std::size_t>(i)];
        const std::string_view point = one.f_mntonname;
        add(one, point);
        if (point.starts_with(dataVolume) && point.substr(dataVolume.size()).starts_with('/'))
            add(one, point.substr(dataVolume.size()));
    }
    return table;
}

}  // namespace zelk
