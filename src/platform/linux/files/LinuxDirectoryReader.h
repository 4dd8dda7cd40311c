// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DirectoryReader.h"

namespace zelk {

/// getdents64 into a buffer that the reader keeps, all of a directory before the first statx; then one statx per entry
/// on the directory's own descriptor. Measured against other orders and io_uring: this is the fastest there is.
class LinuxDirectoryService : public DirectoryService {
public:
    std::optional<RootStatus> status(const std::string& path) override;
    std::shared_ptr<const DirectoryRoot> openRoot(const std::string& path) override;
    std::unique_ptr<DirectoryReader> makeReader() override;
    std::int64_t maximumReaders() override;
};

}  // namespace zelk
