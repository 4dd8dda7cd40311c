// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FileContents.h"

namespace zelk {

/// The implementation for both systems. Paths may be of any length.
class PosixFileContents : public FileContents {
public:
    std::unique_ptr<FolderWalk> walk(const std::string& root) override;
    std::unique_ptr<FileReading> open(const ItemPath& file) override;
    std::optional<FileStamp> stamp(const ItemPath& file) override;
};

}  // namespace zelk
