// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "platform/DirectoryReader.h"

namespace zelk {

/// getattrlistbulk: the entries and all that is asked of them by one call per buffer full, and no call per entry. What
/// is mounted below a root when it is opened has another device than the folder that holds it, as everywhere; what is
/// mounted there later cannot be read. A reader is made, used and destroyed on one thread, which fetches no folder of
/// cloud storage that is not on the disk meanwhile.
class BulkDirectoryService : public DirectoryService {
public:
    /// Nearly every directory fits into 256 KiB and is then read by one call. Each reader has a buffer of its own; it
    /// must hold the largest record, or a directory with a longer name cannot be read.
    explicit BulkDirectoryService(std::size_t bufferBytes = 256 * 1024) : bufferBytes_(bufferBytes) {}

    std::optional<RootStatus> status(const std::string& path) override;
    std::shared_ptr<const DirectoryRoot> openRoot(const std::string& path) override;
    std::unique_ptr<DirectoryReader> makeReader() override;
    std::int64_t maximumReaders() override;

private:
    std::size_t bufferBytes_;
};

}  // namespace zelk
