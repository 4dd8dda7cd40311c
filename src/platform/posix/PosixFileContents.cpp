// SPDX-License-Identifier: MIT
#include "platform/posix/PosixFileContents.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#ifdef __linux__
#include <sys/uio.h>
#endif

#include <utility>

#include "platform/FolderPath.h"
#include "platform/posix/Descriptor.h"
#include "platform/posix/OpenParent.h"
#include "platform/posix/PosixFolderWalk.h"
#include "platform/posix/StampedFile.h"

namespace zelk {

namespace {

// Another process may replace a file by a pipe, on which opening would wait, or by a terminal, between two looks at it.
constexpr int readingFlags = O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;

/// Whether the byte at `offset` is in the system's cache already. Reading ahead what is there costs a tenth of the time
/// of hashing it.
bool isCached(int file, std::int64_t offset) {
#ifdef __linux__
    char byte = 0;
    iovec place{&byte, 1};
    return ::preadv2(file, &place, 1, offset, RWF_NOWAIT) == 1;
#else
    static_cast<void>(file);
    static_cast<void>(offset);
    return false;
#endif
}

class PosixFileReading : public FileReading {
public:
    PosixFileReading(Descriptor file, const FileStamp& stamp) : file_(std::move(file)), stamp_(stamp) {
#ifdef __linux__
        ::posix_fadvise(file_.get(), 0, 0, POSIX_FADV_SEQUENTIAL);
#endif
    }

    const FileStamp& stamp() const override {
        return stamp_;
    }

    std::optional<FileStamp> stampNow() override {
        struct stat status {};
        if (::fstat(file_.get(), &status) != 0) return std::nullopt;
        return stampFrom(status);
    }

    std::optional<std::size_t> read(std::byte* buffer, std::size_t most) override {
        const ssize_t got = uninterrupted([&] { return ::read(file_.get(), buffer, most); });
        if (got < 0) return std::nullopt;
        return static_cast<std::size_t>(got);
    }

    void prefetch(std::int64_t offset, std::int64_t bytes) override {
        if (isCached(file_.get(), offset)) return;
#ifdef __linux__
        ::posix_fadvise(file_.get(), offset, bytes, POSIX_FADV_WILLNEED);
#else
        radvisory wanted{};
        wanted.ra_offset = offset;
        wanted.ra_count = static_cast<int>(bytes);
        ::fcntl(file_.get(), F_RDADVISE, &wanted);
#endif
    }

private:
    Descriptor file_;
    FileStamp stamp_;
};

}  // namespace

std::unique_ptr<FolderWalk> PosixFileContents::walk(const std::string& root) {
    return openFolderWalk(root);
}

std::unique_ptr<FileReading> PosixFileContents::open(const ItemPath& item) {
    const Descriptor parent = openParent(item);
    if (!parent) return nullptr;
    const std::string name(item.name());
    Descriptor file(uninterrupted([&] { return ::openat(parent.get(), name.c_str(), readingFlags); }));
    struct stat status {};
    if (!file || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode) || isDataless(status)) return nullptr;
    return std::make_unique<PosixFileReading>(std::move(file), stampFrom(status));
}

std::optional<FileStamp> PosixFileContents::stamp(const ItemPath& item) {
    const Descriptor parent = openParent(item);
    if (!parent) return std::nullopt;
    const std::string name(item.name());
    struct stat status {};
    if (uninterrupted([&] { return ::fstatat(parent.get(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW); }) != 0)
        return std::nullopt;
    if (!S_ISREG(status.st_mode) || isDataless(status)) return std::nullopt;
    return stampFrom(status);
}

}  // namespace zelk
