// SPDX-License-Identifier: MIT
#include "platform/linux/files/LinuxDirectoryReader.h"

#include <dirent.h>
#include <sys/resource.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "platform/linux/files/EntryNames.h"
#include "platform/linux/files/ScanVolume.h"
#include "platform/linux/files/StatxEntry.h"
#include "platform/posix/DescriptorLimit.h"
#include "platform/posix/DirectoryLadder.h"
#include "platform/posix/OpenDirectory.h"
#include "platform/posix/PosixRoot.h"

namespace zelk {

namespace {

/// Folders from this many entries on are shared. Below, waking a thread takes as long as what it would do.
constexpr std::size_t sharedFrom = 8 * EntryNames::stride;

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

    void setHelpers(Helpers* helpers) override { helpers_ = helpers; }

    std::int64_t timesSlept() const override {
        rusage usage;
        return ::getrusage(RUSAGE_THREAD, &usage) == 0 ? usage.ru_nvcsw : 0;
    }

private:
    /// The entries of a large directory, one part for every place in its list of names. Each part has the room for its
    /// own in the list of entries, so that they come in the order of their names whoever reads them.
    class StatusWork : public SharedWork {
    public:
        StatusWork(LinuxDirectoryReader& reader, int directory)
            : reader_(reader), directory_(directory), found_(reader.names_.places()) {}

        std::size_t parts() const override { return found_.size(); }

        void run(std::size_t part) override {
            if (failed_.load(std::memory_order_relaxed)) return;
            const std::size_t first = part * EntryNames::stride;
            const std::size_t count = std::min(EntryNames::stride, reader_.names_.count() - first);
            if (const auto found = reader_.readStatus(directory_, part, count))
                found_[part] = static_cast<std::uint32_t>(*found);
            else
                failed_.store(true, std::memory_order_relaxed);
        }

        bool failed() const { return failed_.load(std::memory_order_relaxed); }

        /// Closes the gaps that entries left which are gone by now, and returns how many are there.
        std::size_t closeGaps(Entries& entries) const {
            const auto at = [&](std::size_t index) { return entries.begin() + static_cast<std::ptrdiff_t>(index); };
            std::size_t end = 0;
            for (std::size_t part = 0; part < found_.size(); end += found_[part++]) {
                const std::size_t first = part * EntryNames::stride;
                if (first != end) std::copy(at(first), at(first + found_[part]), at(end));
            }
            return end;
        }

    private:
        LinuxDirectoryReader& reader_;
        const int directory_;
        std::vector<std::uint32_t> found_;
        std::atomic<bool> failed_ = false;
    };

    const Entries* read() {
        const int directory = ladder_.current();
        if (entries_.capacity() * sizeof(DirEntry) > EntryNames::keptBytes) Entries().swap(entries_);
        entries_.clear();
        if (directory < 0 || !names_.read(directory)) return nullptr;
        // Make room exactly: a list that grows by doubling briefly exists twice, which in a folder of hundreds of
        // thousands of entries would be the peak of the whole scan.
        entries_.resize(names_.count());
        const std::optional<std::size_t> found = helpers_ != nullptr && names_.count() >= sharedFrom
                                                     ? shareStatus(directory)
                                                     : readStatus(directory, 0, names_.count());
        if (!found) return nullptr;
        entries_.resize(*found);
        return &entries_;
    }

    std::optional<std::size_t> shareStatus(int directory) {
        StatusWork work(*this, directory);
        if (!helpers_->run(work) || work.failed()) return std::nullopt;
        return work.closeGaps(entries_);
    }

    /// Reads the status of `count` entries from place `from` on into their room in the list. Returns how many of them
    /// still exist, one after the other; nothing if the directory counts as unreadable. Several threads may read at
    /// once, each from another place.
    std::optional<std::size_t> readStatus(int directory, std::size_t from, std::size_t count) {
        DirEntry* const first = entries_.data() + from * EntryNames::stride;
        DirEntry* next = first;
        const bool isReadable = names_.forEach(from, count, [&](const char* name, std::uint8_t type) {
            std::uint64_t mount = 0;
            switch (statxEntry(directory, name, *next, &mount)) {
                case StatxOutcome::ok:
                    if (next->objType == directoryObjectType) volume_.claim(directory, name, mount, *next);
                    ++next;
                    return true;
                case StatxOutcome::gone:
                    return true;  // deleted since it was listed, which is not a failure
                case StatxOutcome::failed:
                    break;
            }
            if (type != DT_DIR) return false;
            switch (classifyFailedSubfolder(directory, errno, *next)) {
                case FailedSubfolder::mountPoint:
                    return true;
                case FailedSubfolder::subfolder:
                    next->name = name;
                    volume_.claimOwn(*next);
                    ++next;
                    return true;
                case FailedSubfolder::directoryUnreadable:
                    break;
            }
            return false;
        });
        if (!isReadable) return std::nullopt;
        return static_cast<std::size_t>(next - first);
    }

    DirectoryLadder ladder_;
    ScanVolume volume_;
    EntryNames names_;
    Entries entries_;
    Helpers* helpers_ = nullptr;
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
