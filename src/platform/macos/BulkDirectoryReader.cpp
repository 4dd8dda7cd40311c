// SPDX-License-Identifier: MIT
#include "platform/macos/BulkDirectoryReader.h"

#include <sys/attr.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>

#include "platform/macos/BulkRecords.h"
#include "platform/macos/CoveredFolders.h"
#include "platform/macos/DatalessFolders.h"
#include "platform/posix/DescriptorLimit.h"
#include "platform/posix/DirectoryLadder.h"
#include "platform/posix/FileStatus.h"
#include "platform/posix/OpenDirectory.h"
#include "platform/posix/PosixRoot.h"

namespace zelk {

namespace {

/// The memory that a reader keeps between directories, apart from its buffer. A directory of hundreds of thousands of
/// entries needs more, which is released afterwards so that not every thread ends up holding it.
constexpr std::size_t keptBytes = 1024 * 1024;

/// The request whose records decodeBulkRecords() decodes. Records have room for every requested attribute, even if it
/// does not apply; only those of directories end before the file attributes.
attrlist attributeRequest() {
    attrlist request{};
    request.bitmapcount = ATTR_BIT_MAP_COUNT;
    request.commonattr = ATTR_CMN_RETURNED_ATTRS | ATTR_CMN_NAME | ATTR_CMN_DEVID | ATTR_CMN_OBJTYPE |
                         ATTR_CMN_MODTIME | ATTR_CMN_FILEID;
    request.fileattr = ATTR_FILE_LINKCOUNT | ATTR_FILE_ALLOCSIZE;
    return request;
}
constexpr std::uint64_t readOptions = FSOPT_NOFOLLOW | FSOPT_PACK_INVAL_ATTRS;

#ifdef __APPLE__
// The decoder's offsets are based on these sizes.
static_assert(sizeof(attribute_set_t) == 20 && sizeof(attrreference_t) == 8 && sizeof(dev_t) == 4 &&
              sizeof(fsobj_type_t) == 4 && sizeof(timespec) == 16 && sizeof(off_t) == 8);
#endif

/// A root with the mounts below it.
class BulkRoot : public PosixRoot {
public:
    explicit BulkRoot(int descriptor) : PosixRoot(descriptor) {
        struct stat status;
        if (fstat(descriptor, &status) == 0) device_ = status.st_dev;
        if (const auto path = pathOfDirectory(descriptor))
            covered_ = std::make_shared<const CoveredFolders>(*path, mountTable());
    }

    dev_t device() const { return device_; }
    const std::shared_ptr<const CoveredFolders>& covered() const { return covered_; }

private:
    dev_t device_ = 0;
    std::shared_ptr<const CoveredFolders> covered_ = std::make_shared<const CoveredFolders>();
};

class BulkDirectoryReader : public DirectoryReader {
public:
    explicit BulkDirectoryReader(std::size_t bufferBytes) : buffer_(bufferBytes) {}

    const Entries* open(const DirectoryRoot& root, const std::string& below) override {
        const auto& own = static_cast<const BulkRoot&>(root);
        covered_ = own.covered();
        device_ = own.device();
        return ladder_.open(own.descriptor(), below) ? read() : nullptr;
    }

    const Entries* descend(std::string_view name) override { return ladder_.descend(name) ? read() : nullptr; }

    bool ascend() override { return ladder_.ascend(); }

private:
    const Entries* read() {
        releaseExcessMemory();
        entries_.clear();
        names_.clear();
        struct stat status;
        if (fstat(ladder_.current(), &status) != 0) return nullptr;
        // Mounted after the root was opened: it belongs to another volume.
        if (status.st_dev != device_) return nullptr;
        const ListedDirectory listed{deviceOf(status), static_cast<TimePoint>(status.st_mtime)};
        attrlist request = attributeRequest();
        while (true) {
            errno = 0;
            const int count = getattrlistbulk(ladder_.current(), &request, buffer_.data(), buffer_.size(), readOptions);
            // A failure without an errno is the end too; what was read so far is complete.
            if (count == 0 || (count < 0 && errno == 0)) break;
            if (count < 0 || !take(static_cast<std::size_t>(count), listed)) return nullptr;
        }
        placeNames();
        if (const CoveredFolders::Names* names = covered_->in(status)) markMountPoints(*names);
        return &entries_;
    }

    /// Copy the names: the next call overwrites the buffer.
    bool take(std::size_t count, const ListedDirectory& listed) {
        const std::size_t known = entries_.size();
        if (!decodeBulkRecords(buffer_, count, listed, entries_)) return false;
        for (std::size_t i = known; i < entries_.size(); ++i) names_.append(entries_[i].name);
        return true;
    }

    /// Names stop moving only when all are there.
    void placeNames() {
        const char* name = names_.data();
        for (DirEntry& entry : entries_) {
            entry.name = std::string_view(name, entry.name.size());
            name += entry.name.size();
        }
    }

    /// The records of mount points have the device of the folder beneath. Only whether the device differs from the
    /// root's matters, not which one it is.
    void markMountPoints(const CoveredFolders::Names& names) {
        for (DirEntry& entry : entries_)
            if (entry.objType == directoryObjectType && names.contains(entry.name)) entry.deviceID = ~entry.deviceID;
    }

    void releaseExcessMemory() {
        if (names_.capacity() > keptBytes) std::string().swap(names_);
        if (entries_.capacity() * sizeof(DirEntry) > keptBytes) Entries().swap(entries_);
    }

    DatalessFetchGuard dataless_;
    DirectoryLadder ladder_;
    std::shared_ptr<const CoveredFolders> covered_;  ///< of the current root
    dev_t device_ = 0;                               ///< the root's
    std::vector<std::byte> buffer_;
    Entries entries_;
    std::string names_;  ///< names of all entries, concatenated
};

}  // namespace

std::optional<RootStatus> BulkDirectoryService::status(const std::string& path) {
    return posixRootStatus(path);
}

std::shared_ptr<const DirectoryRoot> BulkDirectoryService::openRoot(const std::string& path) {
    const int directory = openRootDirectory(path);
    return directory < 0 ? nullptr : std::make_shared<BulkRoot>(directory);
}

std::unique_ptr<DirectoryReader> BulkDirectoryService::makeReader() {
    return std::make_unique<BulkDirectoryReader>(bufferBytes_);
}

std::int64_t BulkDirectoryService::maximumReaders() {
    return readersWithinDescriptorLimit();
}

}  // namespace zelk
