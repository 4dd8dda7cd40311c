// SPDX-License-Identifier: MIT
#include "platform/ReplacedFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <time.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <optional>
#include <random>

#include "platform/posix/Descriptor.h"
#include "platform/posix/DirectoryNames.h"
#include "platform/posix/FileFacts.h"
#include "platform/posix/Flush.h"

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

/// Resolves links at the end of `path` to the file, which need not exist. Sets errno if it cannot.
std::optional<ResolvedFile> resolve(std::string path) {
    for (int links = 0; links <= maximumLinks; ++links) {
        struct stat status {};
        ResolvedFile place = split(path);
        if (!isPlainName(place.name)) {
            errno = place.name.empty() && place.folder == "./" ? ENOENT : EISDIR;
            return std::nullopt;
        }
        if (::lstat(path.c_str(), &status) != 0 || !S_ISLNK(status.st_mode)) return place;
        const std::optional<std::string> target = textOfLink(path);
        if (!target) return std::nullopt;
        path = target->starts_with('/') ? *target : place.folder + *target;
    }
    errno = ELOOP;
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

}  // namespace

struct ReplacedFile::Writing {
    ResolvedFile place;
    Descriptor folder;
    Descriptor file;
    std::string temporary;  // empty if there is none, or no longer
    int error = 0;

    /// Notes the errno of a call that failed. False, for callers to return.
    bool fail() {
        if (error == 0) error = errno != 0 ? errno : EIO;
        return false;
    }

    bool open(const std::string& path, Access access) {
        const std::optional<ResolvedFile> resolved = resolve(path);
        if (!resolved) return fail();
        place = *resolved;
        folder = openFolder(place.folder);
        if (!folder) return fail();

        struct stat old {};
        const bool exists = ::fstatat(folder.get(), place.name.c_str(), &old, AT_SYMLINK_NOFOLLOW) == 0;
        if (exists && !S_ISREG(old.st_mode)) {
            errno = S_ISDIR(old.st_mode) ? EISDIR : EINVAL;
            return fail();
        }
        if (!exists && errno != ENOENT) return fail();

        joinWriters(folder);
        const std::string name = temporaryName();
        const bool asUsual = access == Access::usual && !exists;
        file = Descriptor(uninterrupted([&] {
            return ::openat(folder.get(), name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                            asUsual ? 0666 : 0600);
        }));
        if (!file) return fail();
        temporary = name;
        // Ignore a failure: some volumes have no permissions, the content matters more, and 0600 is safe.
        if (!asUsual) static_cast<void>(::fchmod(file.get(), exists ? old.st_mode & 0777 : 0600));
        return true;
    }

    bool commit() {
        if (error != 0) return false;
        if (!flush(file) || !file.close() ||
            ::renameat(folder.get(), temporary.c_str(), folder.get(), place.name.c_str()) != 0) {
            return fail();
        }
        temporary.clear();
        flush(folder);
        return true;
    }
};

ReplacedFile::ReplacedFile(const std::string& path, Access access) : writing_(std::make_unique<Writing>()) {
    writing_->open(path, access);
}

ReplacedFile::~ReplacedFile() {
    if (!writing_->temporary.empty()) ::unlinkat(writing_->folder.get(), writing_->temporary.c_str(), 0);
}

void ReplacedFile::write(std::string_view content) {
    if (writing_->error == 0 && !writeAll(writing_->file, content)) writing_->fail();
}

bool ReplacedFile::commit() {
    return writing_->commit();
}

int ReplacedFile::error() const {
    return writing_->error;
}

}  // namespace zelk
