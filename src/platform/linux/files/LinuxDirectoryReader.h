// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DirectoryReader.h"

namespace zelk {

/// Lists a whole directory with getdents64 into a reused buffer, then calls statx once per entry on the directory's
/// descriptor. Measured faster than other orders and than io_uring.
class LinuxDirectoryService : public DirectoryService {
public:
    std::optional<RootStatus> status(const std::string& path) override;
    std::shared_ptr<const DirectoryRoot> openRoot(const std::string& path) override;
    std::unique_ptr<DirectoryReader> makeReader() override;
    std::int64_t maximumReaders() override;
};

}  // namespace zelk
