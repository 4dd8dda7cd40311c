// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "platform/DirectoryReader.h"

namespace zelk {

/// Reads entries and their attributes with getattrlistbulk: one call per full buffer, none per entry. Folders below a
/// root that were mounted when it was opened have another device than their parent, as everywhere; those mounted later
/// cannot be read. A reader is created, used and destroyed on one thread, which meanwhile does not download folders
/// from cloud storage.
class BulkDirectoryService : public DirectoryService {
public:
    /// Nearly every directory fits into 256 KiB and is read by one call. Each reader has its own buffer, which must
    /// hold the largest record, else the directory cannot be read.
    explicit BulkDirectoryService(std::size_t bufferBytes = 256 * 1024) : bufferBytes_(bufferBytes) {}

    std::optional<RootStatus> status(const std::string& path) override;
    std::shared_ptr<const DirectoryRoot> openRoot(const std::string& path) override;
    std::unique_ptr<DirectoryReader> makeReader() override;
    std::int64_t maximumReaders() override;

private:
    std::size_t bufferBytes_;
};

}  // namespace zelk
