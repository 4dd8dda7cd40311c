// SPDX-License-Identifier: MIT
#include "platform/linux/files/LinuxDirectoryReader.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstring>

#include "platform/linux/files/ScanVolume.h"
#include "platform/linux/files/StatxEntry.h"
#include "platform/posix/DescriptorLimit.h"
#include "platform/posix/DirectoryLadder.h"
#include "platform/posix/OpenDirectory.h"
#include "platform/posix/PosixRoot.h"

namespace zelk {

namespace {

/// The buffer size of one getdents64 call; an ordinary folder fits at once.
constexpr std::size_t readBytes = 64 * 1024;

/// The memory that a reader keeps between folders. A folder of hundreds of thousands of entries needs far more, which
/// is released afterwards so that not every thread ends up holding it.
constexpr std::size_t keptBytes = 1024 * 1024;

/// The kernel's record (getdents64(2)), followed by the name.
struct KernelEntry {
    std::uint64_t inode;
    std::int64_t offset;
    std::uint16_t length;
    std::uint8_t type;
};
constexpr std::size_t nameOffset = offsetof(KernelEntry, type) + 1;

bool isDotOrDotDot(const char* name) {
    return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'));
}

enum class FailedSubfolder {
    directoryUnreadable,  ///< no entry of the directory has a readable status
    mountPoint,           ///< of a dead or another user's file system: omitted, being on another device
    subfolder,            ///< for example damaged: kept as an entry, and found unreadable when opened
};

/// Classifies a subfolder of `directory` whose statx failed, since one bad subfolder must not make its parent
/// unreadable. Fills `entry` except its name for FailedSubfolder::subfolder.
FailedSubfolder classifyFailedSubfolder(int directory, int error, DirEntry& entry) {
    if (statxEntry(directory, ".", entry) != StatxOutcome::ok) return FailedSubfolder::directoryUnreadable;
    entry.fileID = 0;
    const bool isMount = error == EACCES || error == ENOTCONN || error == EHOSTDOWN || error == ETIMEDOUT;
    return isMount ? FailedSubfolder::mountPoint : FailedSubfolder::subfolder;
}

class LinuxDirectoryReader : public DirectoryReader {
public:
    const Entries* open(const DirectoryRoot& root, const std::string& below) override {
        const auto& own = static_cast<const LinuxRoot&>(root);
        volume_ = own.volume;
        ladder_.open(own.descriptor(), below);
        return read();
    }

    const Entries* descend(std::string_view name) override {
        ladder_.descend(name);
        return read();
    }

    bool ascend() override { return ladder_.ascend(); }

private:
    const Entries* read() {
        const int directory = ladder_.current();
        releaseExcessMemory();
        entries_.clear();
        if (directory < 0 || !readNames(directory)) return nullptr;
        return statEntries(directory) ? &entries_ : nullptr;
    }

    /// Reads all records of the directory into names_.
    bool readNames(int directory) {
        used_ = 0;
        while (true) {
            if (names_.size() < used_ + readBytes) names_.resize(used_ == 0 ? readBytes : used_ * 2 + readBytes);
            const long got = syscall(SYS_getdents64, directory, names_.data() + used_, names_.size() - used_);
            if (got == 0) return true;
            if (got < 0) {
                if (errno == EINTR) continue;
                return false;
            }
            used_ += static_cast<std::size_t>(got);
        }
    }

    std::size_t countRecords() const {
        std::size_t count = 0;
        for (std::size_t at = 0; at < used_; ++count) {
            std::uint16_t length;
            std::memcpy(&length, names_.data() + at + offsetof(KernelEntry, length), sizeof length);
            at += length;
        }
        return count;
    }

    bool statEntries(int directory) {
        // Reserve exactly: a list that grows by doubling briefly exists twice, which in a folder of hundreds of
        // thousands of entries would be the peak of the whole scan.
        entries_.reserve(countRecords());
        for (std::size_t at = 0; at < used_;) {
            KernelEntry record;
            std::memcpy(&record, names_.data() + at, sizeof record);
            const char* name = names_.data() + at + nameOffset;
            at += record.length;
            if (isDotOrDotDot(name)) continue;
            DirEntry& entry = entries_.emplace_back();
            std::uint64_t mount = 0;
            switch (statxEntry(directory, name, entry, &mount)) {
                case StatxOutcome::ok:
                    if (entry.objType == directoryObjectType) volume_.claim(directory, name, mount, entry);
                    continue;
                case StatxOutcome::gone:
                    break;  // deleted since it was listed, which is not a failure
                case StatxOutcome::failed:
                    if (record.type != DT_DIR) return false;
                    switch (classifyFailedSubfolder(directory, errno, entry)) {
                        case FailedSubfolder::mountPoint:
                            break;
                        case FailedSubfolder::subfolder:
                            entry.name = name;
                            volume_.claimOwn(entry);
                            continue;
                        case FailedSubfolder::directoryUnreadable:
                            return false;
                    }
                    break;
            }
            entries_.pop_back();
        }
        return true;
    }

    void releaseExcessMemory() {
        if (names_.capacity() > keptBytes) std::vector<char>().swap(names_);
        if (entries_.capacity() * sizeof(DirEntry) > keptBytes) Entries().swap(entries_);
    }

    DirectoryLadder ladder_;
    ScanVolume volume_;
    std::vector<char> names_;
    std::size_t used_ = 0;
    Entries entries_;
};

}  // namespace

std::optional<RootStatus> LinuxDirectoryService::status(const std::string& path) {
    return posixRootStatus(path);
}

std::shared_ptr<const DirectoryRoot> LinuxDirectoryService::openRoot(const std::string& path) {
    const int fd = openRootDirectory(path);
    return fd < 0 ? nullptr : std::make_shared<LinuxRoot>(fd);
}

std::unique_ptr<DirectoryReader> LinuxDirectoryService::makeReader() {
    return std::make_unique<LinuxDirectoryReader>();
}

std::int64_t LinuxDirectoryService::maximumReaders() {
    return readersWithinDescriptorLimit();
}

}  // namespace zelk
