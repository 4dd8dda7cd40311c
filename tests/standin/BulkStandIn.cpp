// SPDX-License-Identifier: MIT
#include "standin/BulkStandIn.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <string_view>

#include "platform/linux/files/StatxEntry.h"

namespace zelk {

BulkStandIn& BulkStandIn::here() {
    thread_local BulkStandIn instance;
    return instance;
}

int& BulkStandIn::materialising() {
    thread_local int policy = IOPOL_MATERIALIZE_DATALESS_FILES_DEFAULT;
    return policy;
}

std::set<std::string>& BulkStandIn::unasked() {
    static std::set<std::string> names;
    return names;
}

namespace {

std::uint32_t objectType(mode_t mode) {
    switch (mode & S_IFMT) {
        case S_IFREG:
            return 1;
        case S_IFDIR:
            return 2;
        case S_IFBLK:
            return 3;
        case S_IFCHR:
            return 4;
        case S_IFLNK:
            return 5;
        case S_IFSOCK:
            return 6;
        case S_IFIFO:
            return 7;
        default:
            return 0;
    }
}

/// Packs one record like the real call: no padding between fields, no file attributes for directories.
std::vector<char> packed(std::string_view name, const struct stat& status) {
    std::vector<char> record;
    const auto add = [&](auto value) {
        const auto* bytes = reinterpret_cast<const char*>(&value);
        record.insert(record.end(), bytes, bytes + sizeof value);
    };
    const bool isDirectory = S_ISDIR(status.st_mode);
    add(std::uint32_t{0});  // placeholder for the length
    for (const std::uint32_t group : {0x8200040BU, 0U, 0U, isDirectory ? 0U : 5U, 0U}) add(group);
    const std::size_t nameStart = isDirectory ? 64 : 76;
    add(static_cast<std::int32_t>(nameStart - record.size()));
    add(static_cast<std::uint32_t>(name.size() + 1));
    add(deviceNumber(major(status.st_dev), minor(status.st_dev)));
    add(objectType(status.st_mode));
    add(std::int64_t{status.st_mtim.tv_sec});
    add(std::int64_t{status.st_mtim.tv_nsec});
    add(std::uint64_t{status.st_ino});
    if (!isDirectory) {
        add(static_cast<std::uint32_t>(status.st_nlink));
        add(static_cast<std::uint64_t>(status.st_blocks) * 512);
    }
    record.insert(record.end(), name.begin(), name.end());
    record.push_back('\0');
    return record;
}

/// Packs the record of an entry without attributes: all fields exist but are zero, except the name.
std::vector<char> packedUnasked(std::string_view name, bool isDirectory) {
    std::vector<char> record(isDirectory ? 64 : 76);
    const std::uint32_t returned = 0x80000001U;
    const auto nameOffset = static_cast<std::int32_t>(record.size() - 24);
    const auto nameLength = static_cast<std::uint32_t>(name.size() + 1);
    std::memcpy(record.data() + 4, &returned, sizeof returned);
    std::memcpy(record.data() + 24, &nameOffset, sizeof nameOffset);
    std::memcpy(record.data() + 28, &nameLength, sizeof nameLength);
    record.insert(record.end(), name.begin(), name.end());
    record.push_back('\0');
    return record;
}

/// Fills the buffer from the descriptor's position and leaves that at the first entry that did not fit.
int fill(int directory, char* buffer, std::size_t size) {
    struct stat own;
    if (fstat(directory, &own) != 0) return -1;
    std::array<char, 32768> listing;
    std::size_t used = 0;
    int count = 0;
    while (true) {
        off_t position = lseek(directory, 0, SEEK_CUR);
        const long got = syscall(SYS_getdents64, directory, listing.data(), listing.size());
        if (got < 0) return -1;
        if (got == 0) return count;
        for (long at = 0; at < got;) {
            dirent64 entry;
            std::memcpy(&entry, listing.data() + at, offsetof(dirent64, d_name));
            const char* name = listing.data() + at + offsetof(dirent64, d_name);
            at += entry.d_reclen;
            struct stat status;
            if (fstatat(directory, name, &status, AT_SYMLINK_NOFOLLOW) != 0) return -1;
            // The kernel looks entries up without crossing mounts: it reports the folder beneath.
            if (S_ISDIR(status.st_mode) && status.st_dev != own.st_dev) {
                status = own;
                status.st_ino = entry.d_ino;
            }
            const std::vector<char> record = BulkStandIn::unasked().contains(name)
                                                 ? packedUnasked(name, S_ISDIR(status.st_mode))
                                                 : packed(name, status);
            if (record.size() > size - used) {
                lseek(directory, position, SEEK_SET);
                if (count == 0) errno = ERANGE;
                return count == 0 ? -1 : count;
            }
            // Rounded up to 8, except for a last record without room for it.
            const std::size_t length = std::min((record.size() + 7) / 8 * 8, size - used);
            const auto lengthField = static_cast<std::uint32_t>(length);
            std::memset(buffer + used, 0x5A, length);
            std::memcpy(buffer + used, record.data(), record.size());
            std::memcpy(buffer + used, &lengthField, sizeof lengthField);
            used += length;
            ++count;
            position = entry.d_off;
        }
    }
}

}  // namespace

}  // namespace zelk

int getiopolicy_np(int type, int scope) {
    const bool known = type == IOPOL_TYPE_VFS_MATERIALIZE_DATALESS_FILES && scope == IOPOL_SCOPE_THREAD;
    return known ? zelk::BulkStandIn::materialising() : -1;
}

int setiopolicy_np(int type, int scope, int policy) {
    const bool known = type == IOPOL_TYPE_VFS_MATERIALIZE_DATALESS_FILES && scope == IOPOL_SCOPE_THREAD;
    if (!known || policy < 0) return -1;
    zelk::BulkStandIn::materialising() = policy;
    return 0;
}

int getattrlistbulk(int directory, void* request, void* buffer, std::size_t size, std::uint64_t options) {
    using namespace zelk;
    BulkStandIn& standIn = BulkStandIn::here();
    const std::size_t call = standIn.calls.size();
    int result;
    if (const auto error = standIn.failure ? standIn.failure(call) : std::nullopt) {
        errno = *error;
        result = -1;
    } else {
        result = fill(directory, static_cast<char*>(buffer), size);
        if (result > 0 && standIn.afterwards) standIn.afterwards(call, buffer, result);
    }
    standIn.calls.push_back(
        {*static_cast<const attrlist*>(request), size, options, result, BulkStandIn::materialising()});
    return result;
}
