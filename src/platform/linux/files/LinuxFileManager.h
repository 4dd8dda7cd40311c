// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FileManager.h"

namespace zelk {

/// File operations by system calls. Functions that only read metadata accept paths longer than PATH_MAX.
class LinuxFileManager : public FileManager {
public:
    bool exists(const std::string& path) override;
    std::optional<FileProperties> properties(const std::string& path) override;
    std::optional<std::vector<std::string>> list(const std::string& path) override;
    std::uint64_t allocatedSizeBelow(const std::string& path) override;
    std::uint64_t fullSizeBelow(const std::string& path) override;
    std::optional<std::string> realPath(const std::string& path) override;
    std::optional<std::string> linkTarget(const std::string& path) override;
    bool isLocked(const std::string& path) override;
    std::optional<std::string> read(const std::string& path) override;
    std::optional<std::string> readSmall(const std::string& path, std::size_t most) override;
    std::optional<std::string> readStart(const std::string& path, std::size_t most) override;
    bool replaceDurably(const std::string& path, std::string_view content) override;
    bool createDirectories(const std::string& path) override;
    int tryOpen(const std::string& path) override;
    Failure remove(const ItemPath& item) override;
};

}  // namespace zelk
