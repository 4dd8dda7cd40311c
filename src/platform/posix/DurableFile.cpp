// SPDX-License-Identifier: MIT
#include "platform/posix/DurableFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <time.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

#include "platform/posix/Descriptor.h"
#include "platform/posix/DirectoryNames.h"
#include "platform/posix/FileFacts.h"

namespace zelk {
namespace {

constexpr std::string_view temporaryPrefix = ".zelk-write-";
constexpr std::string_view hexDigits = "0123456789abcdef";
constexpr std::size_t randomDigits = 16;
constexpr int maximumLinks = 40;                            // the kernel's own limit
constexpr std::size_t maximumWrite = std::size_t{1} << 30;  // macOS refuses 2 GiB in one call

struct ResolvedFile {
    std::string folder;  // with a trailing slash
    std::string name;
};

ResolvedFile split(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos) return {"./", path};
    return {path.substr(0, slash + 1), path.substr(slash + 1)};
}

bool isPlainName(std::string_view name) {
    return !name.empty() && name != "." && name != "..";
}

/// Resolves links at the end of `path` to the file, which need not exist.
std::optional<ResolvedFile> resolve(std::string path) {
    for (int links = 0; links <= maximumLinks; ++links) {
        struct stat status {};
        ResolvedFile place = split(path);
        if (!isPlainName(place.name)) return std::nullopt;
        if (::lstat(path.c_str(), &status) != 0 || !S_ISLNK(status.st_mode)) return place;
        const std::optional<std::string> target = textOfLink(path);
        if (!target) return std::nullopt;
        path = target->starts_with('/') ? *target : place.folder + *target;
    }
    return std::nullopt;
}

std::string temporaryName() {
    std::string name(temporaryPrefix);
    std::random_device random;
    for (std::size_t digit = 0; digit < randomDigits; ++digit) name += hexDigits[random() % hexDigits.size()];
    return name;
}

bool isTemporaryName(std::string_view name) {
    return name.size() == temporaryPrefix.size() + randomDigits && name.starts_with(temporaryPrefix) &&
           name.find_first_not_of(hexDigits, temporaryPrefix.size()) == std::string_view::npos;
}

/// Removes the temporary files of killed writers from `folder`. Call it only while nobody writes there.
void sweep(const Descriptor& folder) {
    const auto names = directoryNames(Descriptor(::openat(folder.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC)));
    if (!names) return;
    for (const std::string& name : *names) {
        if (isTemporaryName(name)) ::unlinkat(folder.get(), name.c_str(), 0);
    }
}

/// Every writer holds a shared lock on the folder while its temporary file exists, so the holder of the exclusive lock
/// knows that no temporary file has a living writer. The lock ends with the descriptor, also if the process is killed.
/// Where locks do not reach (another machine on a network volume), the worst case is that a writer's file is swept and
/// the write fails with the old content in place: names are random, so a writer never renames a file that another is
/// still writing.
void joinWriters(const Descriptor& folder) {
    if (::flock(folder.get(), LOCK_EX | LOCK_NB) == 0) sweep(folder);
    // A sweep takes only a moment. Do not wait for a longer holder, which is not a writer of ours.
    constexpr timespec pause{0, 5'000'000};
    for (int attempt = 0; attempt < 100; ++attempt) {
        if (::flock(folder.get(), LOCK_SH | LOCK_NB) == 0 || errno != EWOULDBLOCK) return;
        ::nanosleep(&pause, nullptr);
    }
}

bool writeAll(const Descriptor& file, std::string_view content) {
    while (!content.empty()) {
        const std::size_t part = std::min(content.size(), maximumWrite);
        const ssize_t written = uninterrupted([&] { return ::write(file.get(), content.data(), part); });
        if (written <= 0) return false;
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

bool flush(const Descriptor& file) {
#ifdef F_FULLFSYNC
    // On macOS, fsync() leaves the data in the drive's cache; not every volume supports the stronger call.
    if (uninterrupted([&] { return ::fcntl(file.get(), F_FULLFSYNC); }) == 0) return true;
#endif
    return uninterrupted([&] { return ::fsync(file.get()); }) == 0;
}

Descriptor openFolder(const std::string& path) {
    return Descriptor(uninterrupted([&] { return ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
}

bool fill(Descriptor file, std::string_view content, mode_t mode) {
    // Ignore a failure: some volumes have no permissions, the content matters more, and 0600 is safe.
    static_cast<void>(::fchmod(file.get(), mode));
    return writeAll(file, content) && flush(file) && file.close();
}

bool isDirectory(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

/// Follows links, and never waits for the other end of a pipe. None for anything but a file.
Descriptor openRegularFile(const std::string& path, struct stat& status) {
    Descriptor file(uninterrupted([&] { return ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY); }));
    if (file && (::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode))) return {};
    return file;
}

}  // namespace

bool replaceFileDurably(const std::string& path, std::string_view content) {
    const std::optional<ResolvedFile> place = resolve(path);
    if (!place) return false;
    const Descriptor folder = openFolder(place->folder);
    if (!folder) return false;

    struct stat old {};
    const bool exists = ::fstatat(folder.get(), place->name.c_str(), &old, AT_SYMLINK_NOFOLLOW) == 0;
    if (exists ? !S_ISREG(old.st_mode) : errno != ENOENT) return false;
    const mode_t mode = exists ? old.st_mode & 0777 : 0600;

    joinWriters(folder);
    const std::string temporary = temporaryName();
    const int fd = uninterrupted([&] {
        return ::openat(folder.get(), temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
    });
    if (fd < 0) return false;
    if (!fill(Descriptor(fd), content, mode) ||
        ::renameat(folder.get(), temporary.c_str(), folder.get(), place->name.c_str()) != 0) {
        ::unlinkat(folder.get(), temporary.c_str(), 0);
        return false;
    }
    flush(folder);
    return true;
}

std::optional<std::string> readFileStart(const std::string& path, std::size_t most) {
    struct stat status {};
    const Descriptor file = openRegularFile(path, status);
    if (!file) return std::nullopt;
    std::string content(most, '\0');
    std::size_t length = 0;
    while (length < most) {
        const ssize_t got = uninterrupted([&] { return ::read(file.get(), content.data() + length, most - length); });
        if (got < 0) return std::nullopt;
        if (got == 0) break;
        length += static_cast<std::size_t>(got);
    }
    content.resize(length);
    return content;
}

std::optional<std::string> readWholeFile(const std::string& path, std::size_t most) {
    struct stat status {};
    const Descriptor file = openRegularFile(path, status);
    if (!file || static_cast<std::uintmax_t>(status.st_size) > most) return std::nullopt;
    std::string content;
    std::size_t length = 0;
    for (;;) {
        // Read one byte more than expected, to see the end without growing again.
        if (length == content.size()) content.resize(std::max<std::size_t>(status.st_size + 1, length * 2 + 4096));
        const ssize_t got =
            uninterrupted([&] { return ::read(file.get(), content.data() + length, content.size() - length); });
        if (got < 0) return std::nullopt;
        if (got == 0) break;
        length += static_cast<std::size_t>(got);
        if (length > most) return std::nullopt;  // the file is growing
    }
    content.resize(length);
    return content;
}

bool createDirectoryTree(const std::string& path) {
    if (path.empty()) return false;
    for (std::size_t end = 0; end != std::string::npos;) {
        end = path.find('/', end + 1);
        const std::string folder = path.substr(0, end);
        if (isDirectory(folder)) continue;
        // Another process may have created it first.
        if (::mkdir(folder.c_str(), 0700) != 0 && !isDirectory(folder)) return false;
        if (const Descriptor above = openFolder(split(folder).folder)) flush(above);
    }
    return true;
}

}  // namespace zelk
